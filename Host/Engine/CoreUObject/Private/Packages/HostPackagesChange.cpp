// Copyright Velmorant. All Rights Reserved.
// Packages that get another name, or go.

#include "HostFiles.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "PackageReferences.h"
#include "PackageStorage.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace HostPackagesChange
{
	const ERenameFlags Flags = REN_DontCreateRedirectors | REN_NonTransactional;

	void RenameInMemory(UPackage* Package, UObject* Asset, const FString& NewPackageName)
	{
		if (UPackage* Empty = FindPackage(nullptr, *NewPackageName)) // what a creation that failed has left
		{
			Empty->Rename(*MakeUniqueObjectName(nullptr, UPackage::StaticClass(), Empty->GetFName()).ToString(), nullptr, Flags);
			Empty->MarkAsGarbage();
		}
		Package->Rename(*NewPackageName, nullptr, Flags);
		Asset->Rename(*PackageFiles::ShortNameOf(NewPackageName), nullptr, Flags);
	}

	/** Everything that refers to the package, in memory and free to be written; unset, with the reason reported, when something is not. */
	TOptional<TArray<UPackage*>> LoadReferencers(const FString& PackageName)
	{
		TArray<UPackage*> Referencers;
		for (const FString& Name : HostPackages::FindReferencers(PackageName))
		{
			UPackage* const Referencer = HostPackages::Load(Name);
			const FString File = HostPackages::FindFile(Name);
			if (Referencer == nullptr)
			{
				HostProblems::ReportNotWritten(File, FString::Printf(TEXT("this refers to %s, and cannot be read"), *PackageName), TEXT("Mend this file first."));
				return NullOpt;
			}
			if (!File.IsEmpty() && !HostFiles::CheckWritable(File))
			{
				return NullOpt;
			}
			Referencers.Add(Referencer);
		}
		return Referencers;
	}

	void Follow(UPackage* Referencer, const FString& PackageName, const FString& NewPackageName)
	{
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Referencer, Objects, true);
		for (UObject* Object : Objects)
		{
			PackageReferences::Replace(Object, PackageName, NewPackageName);
		}
		Referencer->MarkPackageDirty();
	}
}

bool HostPackages::Rename(const FString& PackageName, const FString& NewPackageName)
{
	UPackage* const Package = Load(PackageName);
	UObject* const Asset = FindMainAsset(Package);
	const FString OldFile = FindFile(PackageName);
	if (Asset == nullptr || (!OldFile.IsEmpty() && !HostFiles::CheckWritable(OldFile)))
	{
		return false;
	}
	const TOptional<TArray<UPackage*>> Referencers = HostPackagesChange::LoadReferencers(PackageName);
	if (!Referencers.IsSet())
	{
		return false;
	}
	HostPackagesChange::RenameInMemory(Package, Asset, NewPackageName);
	if (!OldFile.IsEmpty() && !Save(Package).Succeeded())
	{
		HostPackagesChange::RenameInMemory(Package, Asset, PackageName);
		return false;
	}
	bool bAllFollowed = true;
	for (UPackage* Referencer : Referencers.GetValue())
	{
		HostPackagesChange::Follow(Referencer, PackageName, NewPackageName);
		bAllFollowed &= FindFile(Referencer->GetName()).IsEmpty() || Save(Referencer).Succeeded();
	}
	// A file that still has the old name in it finds the asset under both.
	if (!OldFile.IsEmpty() && bAllFollowed)
	{
		bAllFollowed = HostFiles::Delete(OldFile);
		FPackageStorage::Get().NoteRemoved();
	}
	return bAllFollowed;
}

bool HostPackages::Delete(const FString& PackageName)
{
	const FString File = FindFile(PackageName);
	if (!File.IsEmpty() && !HostFiles::Delete(File))
	{
		return false;
	}
	FPackageStorage::Get().NoteRemoved();
	if (UPackage* const Package = FindPackage(nullptr, *PackageName))
	{
		Displace(Package);
	}
	return true;
}

void HostPackages::Displace(UPackage* Package)
{
	TArray<UObject*> Inners;
	GetObjectsWithOuter(Package, Inners, false);
	for (UObject* Inner : Inners)
	{
		const FName FreeName = MakeUniqueObjectName(GetTransientPackage(), Inner->GetClass(), Inner->GetFName());
		Inner->Rename(*FreeName.ToString(), GetTransientPackage(), HostPackagesChange::Flags);
		Inner->ClearFlags(RF_Public | RF_Standalone);
		Inner->MarkAsGarbage();
	}
	Package->SetDirtyFlag(false);
}
