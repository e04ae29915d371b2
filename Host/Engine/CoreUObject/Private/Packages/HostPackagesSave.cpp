// Copyright Velmorant. All Rights Reserved.

#include "HostPackages.h"

#include "HostFiles.h"
#include "HostProblems.h"
#include "PackageFormats.h"
#include "PackageJson.h"
#include "PackageStorage.h"
#include "PackageWriter.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

namespace HostPackages
{
	const TCHAR* const LevelClass = TEXT("/Script/Engine.World");

	FString ClassPathOf(const UObject* Asset)
	{
		return Asset->GetClass()->GetClassPathName().ToString();
	}

	bool Refuse(const FString& PackageName, const FString& Message, const FString& Remedy)
	{
		const FString File = FindFile(PackageName);
		HostProblems::ReportNotWritten(File.IsEmpty() ? PackageName : File, Message, Remedy);
		return false;
	}

	/** Whether the package may be written at all; reports why not. */
	bool CheckSavable(const UPackage* Package, const UObject* Asset)
	{
		const FString PackageName = Package->GetName();
		FString Reason;
		if (!IsValidPackageName(PackageName, &Reason))
		{
			return Refuse(PackageName, FString(TEXT("this has no place on disk: ")) + Reason, TEXT("Save it under another name."));
		}
		if (Asset->GetFName() != FName(*PackageFiles::ShortNameOf(PackageName)))
		{
			return Refuse(PackageName, FString::Printf(TEXT("the package holds \"%s\", but an asset must have the name of its package"), *Asset->GetName()),
				TEXT("Rename the asset."));
		}
		if (GetStored(PackageName) == EStored::Binary)
		{
			return Refuse(PackageName, TEXT("a binary asset of the engine has this name, and is not written over"), TEXT("Save under another name."));
		}
		if (const FString* Missing = FPackageStorage::Get().FindLostReference(Asset))
		{
			return Refuse(PackageName, FString(TEXT("not saved, because a reference could not be resolved when it was loaded: ")) + *Missing,
				TEXT("Bring the missing asset back and open the project again."));
		}
		return true;
	}

	/** The text of the package's file; false when there can be none, which is reported. */
	bool MakeText(const UPackage* Package, UObject* Asset, std::string& OutText)
	{
		const FPackageFormat* Format = FPackageFormat::Find(ClassPathOf(Asset));
		FJson Document;
		if (Format == nullptr)
		{
			Document = PackageWriter::Write(Asset);
		}
		else if (!Format->Writer || !Format->Writer(Asset, Document))
		{
			return Refuse(Package->GetName(), TEXT("assets of this class are made from their files and not written back"), TEXT("Edit the file itself."));
		}
		return PackageJson::Print(Document, OutText) ||
			Refuse(Package->GetName(), TEXT("a text in it is not valid Unicode"), TEXT("Enter the text again."));
	}

	/** Where the package belongs; its old file when that has the right suffix, so that the case of its name stays. */
	FString ChooseFile(const FString& PackageName, const UObject* Asset)
	{
		const TCHAR* Suffix = ClassPathOf(Asset) == LevelClass ? PackageFiles::LevelSuffix : PackageFiles::AssetSuffix;
		const FString OldFile = FindFile(PackageName);
		return OldFile.EndsWith(Suffix) ? OldFile : FPackageStorage::Get().GetStem(PackageName) + Suffix;
	}

	bool SaveOne(UPackage* Package, FSaveReport& Report)
	{
		UObject* Asset = FindMainAsset(Package);
		if (Asset == nullptr)
		{
			return Refuse(Package->GetName(), TEXT("there is nothing to save in this package"), FString());
		}
		std::string Text;
		if (!CheckSavable(Package, Asset) || !MakeText(Package, Asset, Text))
		{
			return false;
		}
		const FString OldFile = FindFile(Package->GetName());
		const FString File = ChooseFile(Package->GetName(), Asset);
		if (!HostFiles::Write(File, Text))
		{
			return false;
		}
		if (!OldFile.IsEmpty() && OldFile != File)
		{
			HostFiles::Delete(OldFile); // an asset became a level, or the other way round: only one of them can have the name
		}
		FPackageStorage::Get().NoteWritten(File);
		Package->SetDirtyFlag(false);
		Report.WrittenFiles.Add(File);
		return true;
	}

	bool IsWrittenBack(const UObject* Asset)
	{
		const FPackageFormat* Format = FPackageFormat::Find(ClassPathOf(Asset));
		return Format == nullptr || Format->Writer;
	}
}

HostPackages::FSaveReport HostPackages::Save(UPackage* Package)
{
	check(Package != nullptr);
	FSaveReport Report;
	(SaveOne(Package, Report) ? Report.SavedPackages : Report.FailedPackages).Add(Package->GetName());
	return Report;
}

HostPackages::FSaveReport HostPackages::SaveAll()
{
	FSaveReport Report;
	for (UPackage* Package : GetDirtyPackages())
	{
		(SaveOne(Package, Report) ? Report.SavedPackages : Report.FailedPackages).Add(Package->GetName());
	}
	return Report;
}

TArray<UPackage*> HostPackages::GetDirtyPackages()
{
	TArray<UPackage*> Packages;
	for (TObjectIterator<UPackage> It; It; ++It)
	{
		const UObject* Asset = It->IsDirty() ? FindMainAsset(*It) : nullptr;
		if (Asset != nullptr && IsWrittenBack(Asset))
		{
			Packages.Add(*It);
		}
	}
	Packages.Sort([](const UPackage& Left, const UPackage& Right) { return Left.GetName().Compare(Right.GetName(), ESearchCase::IgnoreCase) < 0; });
	return Packages;
}
