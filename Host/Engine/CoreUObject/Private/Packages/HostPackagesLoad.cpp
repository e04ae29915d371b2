// Copyright Velmorant. All Rights Reserved.

#include "HostPackages.h"

#include "HostProblems.h"
#include "HostTextFiles.h"
#include "PackageFormats.h"
#include "PackageJson.h"
#include "PackageReader.h"
#include "PackageStorage.h"
#include "PackageWriter.h"
#include "PropertyReader.h"
#include "PropertyWriter.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace HostPackages
{
	/** Notes that a package's file is being read, for as long as it lives. */
	class FLoadingScope
	{
	public:
		explicit FLoadingScope(const FString& PackageName)
			: Name(*PackageName)
		{
			FPackageStorage::Get().Loading.Add(Name);
		}
		~FLoadingScope() { FPackageStorage::Get().Loading.Remove(Name); }
		FLoadingScope(const FLoadingScope&) = delete;
		FLoadingScope& operator=(const FLoadingScope&) = delete;

	private:
		FName Name;
	};

	UPackage* LoadByReader(const FReader& Reader, const FString& File, const FString& PackageName, const FJson& Document)
	{
		UPackage* Package = CreatePackage(*PackageName);
		UObject* Asset = Reader({File, PackageFiles::ShortNameOf(PackageName), Document}, Package);
		Package->SetDirtyFlag(false);
		if (Asset == nullptr)
		{
			return nullptr;
		}
		Package->MarkAsFullyLoaded();
		return Package;
	}

	/** Null for a document that is read like all others, or is none of an asset. */
	const FPackageFormat* FindFormat(const FJson& Document)
	{
		const auto Class = Document.is_object() ? Document.find(PackageFormat::Class) : Document.end();
		return Class != Document.end() && Class->is_string() ? FPackageFormat::Find(PackageJson::ToString(Class->get_ref<const std::string&>())) : nullptr;
	}

	void ReportUnresolved(const FString& File, UObject* Asset, const TArray<FJsonProblem>& Unresolved)
	{
		for (const FJsonProblem& Missing : Unresolved)
		{
			PackageJson::Report(File, Missing);
		}
		if (!Unresolved.IsEmpty())
		{
			FPackageStorage::Get().MarkIncomplete(Asset, Unresolved[0].Pointer + TEXT(": ") + Unresolved[0].Message);
		}
	}

	UPackage* LoadText(const FString& File, const FString& PackageName)
	{
		std::string Text;
		if (HostTextFiles::ReadUtf8(File, Text) != HostFiles::ERead::Done)
		{
			return nullptr;
		}
		FJson Document;
		FJsonProblem Problem;
		if (!PackageJson::Parse(Text, Document, Problem))
		{
			PackageJson::Report(File, Problem);
			return nullptr;
		}
		if (const FPackageFormat* Format = FindFormat(Document))
		{
			return LoadByReader(Format->Reader, File, PackageName, Document);
		}
		FPackageReader Reader(PackageName, Document);
		UPackage* Package = Reader.Read();
		if (Package == nullptr)
		{
			PackageJson::Report(File, Reader.GetProblem());
			return nullptr;
		}
		if (File.EndsWith(PackageFiles::LevelSuffix))
		{
			Package->SetPackageFlags(PKG_ContainsMap);
		}
		ReportUnresolved(File, FindMainAsset(Package), Reader.GetUnresolved());
		return Package;
	}
}

UPackage* HostPackages::Load(const FString& PackageName)
{
	FPackageStorage& Storage = FPackageStorage::Get();
	UPackage* InMemory = FindPackage(nullptr, *PackageName);
	if (InMemory != nullptr && (FindMainAsset(InMemory) != nullptr || Storage.Loading.Contains(InMemory->GetFName())))
	{
		return InMemory;
	}
	const FPackageStorage::FFound Found = Storage.Find(PackageName);
	if (Found.Stored == EStored::Nothing)
	{
		return nullptr;
	}
	if (Found.Stored == EStored::Binary)
	{
		HostProblems::Report(Found.File, 0, TEXT("this is a binary asset of the engine, which this program cannot read"),
			TEXT("Work on it in the engine; its name stays reserved here."));
		return nullptr;
	}
	const FString StoredName = Storage.GetPackageName(Found.File);
	if (!IsValidPackageName(StoredName))
	{
		return nullptr;
	}
	const FLoadingScope Scope(StoredName);
	return LoadText(Found.File, StoredName);
}
