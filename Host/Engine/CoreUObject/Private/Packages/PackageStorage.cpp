// Copyright Velmorant. All Rights Reserved.

#include "PackageStorage.h"

#include "HostFiles.h"
#include "HostState.h"

namespace PackageFiles
{
	THostState<FPackageStorage> Storage;

	struct FSuffix
	{
		const TCHAR* Text;
		HostPackages::EStored Stored;
	};

	const FSuffix Suffixes[] = {
		{AssetSuffix, HostPackages::EStored::Text},
		{LevelSuffix, HostPackages::EStored::Text},
		{BinaryAssetSuffix, HostPackages::EStored::Binary},
		{BinaryLevelSuffix, HostPackages::EStored::Binary},
	};
}

FString PackageFiles::ShortNameOf(const FString& PackageName)
{
	int32 LastSlash = INDEX_NONE;
	return PackageName.FindLastChar(TEXT('/'), LastSlash) ? PackageName.RightChop(LastSlash + 1) : PackageName;
}

FPackageStorage& FPackageStorage::Get()
{
	return PackageFiles::Storage.Get();
}

void FPackageStorage::Mount(const FString& Root, const FString& Directory)
{
	FMount NewMount;
	NewMount.Root = Root.EndsWith(TEXT("/")) ? Root : Root + TEXT("/");
	NewMount.Directory = Directory.EndsWith(TEXT("/")) ? Directory : Directory + TEXT("/");
	++Version;
	for (FMount& Known : Mounts)
	{
		if (Known.Root == NewMount.Root)
		{
			Known = NewMount;
			return;
		}
	}
	Mounts.Add(NewMount);
}

TArray<FString> FPackageStorage::GetRoots() const
{
	TArray<FString> Roots;
	for (const FMount& Known : Mounts)
	{
		Roots.Add(Known.Root);
	}
	return Roots;
}

const FPackageStorage::FMount* FPackageStorage::FindMount(const FString& PackageName) const
{
	const FMount* Best = nullptr;
	for (const FMount& Known : Mounts)
	{
		if (PackageName.StartsWith(Known.Root) && (Best == nullptr || Known.Root.Len() > Best->Root.Len()))
		{
			Best = &Known;
		}
	}
	return Best;
}

FString FPackageStorage::GetStem(const FString& PackageName) const
{
	const FMount* Place = FindMount(PackageName);
	return Place != nullptr ? Place->Directory + PackageName.RightChop(Place->Root.Len()) : FString();
}

FString FPackageStorage::GetPackageName(const FString& File) const
{
	for (const TCHAR* Suffix : {PackageFiles::AssetSuffix, PackageFiles::LevelSuffix})
	{
		if (!File.EndsWith(Suffix, ESearchCase::CaseSensitive))
		{
			continue;
		}
		for (const FMount& Known : Mounts)
		{
			if (File.StartsWith(Known.Directory, ESearchCase::CaseSensitive))
			{
				return Known.Root + File.RightChop(Known.Directory.Len()).LeftChop(FString(Suffix).Len());
			}
		}
	}
	return FString();
}

FPackageStorage::FFound FPackageStorage::Find(const FString& PackageName) const
{
	const FMount* Place = FindMount(PackageName);
	if (Place == nullptr || PackageName.Len() == Place->Root.Len())
	{
		return FFound();
	}
	const FString Stem = GetStem(PackageName);
	for (const PackageFiles::FSuffix& Suffix : PackageFiles::Suffixes)
	{
		if (HostFiles::FileExists(Stem + Suffix.Text))
		{
			return {Suffix.Stored, Stem + Suffix.Text};
		}
	}
	return FindIgnoringCase(Stem);
}

FPackageStorage::FFound FPackageStorage::FindIgnoringCase(const FString& Stem) const
{
	if (ListedVersion != Version)
	{
		ListedVersion = Version;
		FilesByLowerCase.Empty();
		for (const FMount& Known : Mounts)
		{
			for (const FString& File : HostFiles::FindFiles(Known.Directory, FString()))
			{
				FilesByLowerCase.Add(File.ToLower(), File);
			}
		}
	}
	for (const PackageFiles::FSuffix& Suffix : PackageFiles::Suffixes)
	{
		const FString* File = FilesByLowerCase.Find((Stem + Suffix.Text).ToLower());
		if (File != nullptr && HostFiles::FileExists(*File))
		{
			return {Suffix.Stored, *File};
		}
	}
	return FFound();
}

void FPackageStorage::NoteWritten(const FString& File)
{
	if (ListedVersion == Version)
	{
		// Listing all files again after each save would make saving many packages slow.
		FilesByLowerCase.Add(File.ToLower(), File);
		++ListedVersion;
	}
	++Version;
}

TArray<FString> FPackageStorage::ListFiles() const
{
	TArray<FString> Files;
	for (const FMount& Known : Mounts)
	{
		Files.Append(HostFiles::FindFiles(Known.Directory, PackageFiles::AssetSuffix));
		Files.Append(HostFiles::FindFiles(Known.Directory, PackageFiles::LevelSuffix));
	}
	return Files;
}

void FPackageStorage::MarkIncomplete(UObject* Asset, const FString& Reference)
{
	Incomplete.Add({Asset, Reference});
}

const FString* FPackageStorage::FindLostReference(const UObject* Asset) const
{
	const FIncomplete* Found = Incomplete.FindByPredicate([Asset](const FIncomplete& Candidate) { return Candidate.Asset.Get() == Asset; });
	return Found != nullptr ? &Found->Reference : nullptr;
}
