// Copyright Velmorant. All Rights Reserved.

#include "HostPackages.h"

#include "HostObjects.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "PackageJson.h"
#include "PackageStorage.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

namespace HostPackages
{
	constexpr int32 MaxShownName = 64; // characters of one that is too long
	const int32 MaxNameBytes = 240; // of the 255 that file systems allow, less the suffix

	/** What neither file systems nor object paths bear; blanks belong to it. */
	const TCHAR* const ForbiddenInPaths = TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#");

	bool CheckName(const FString& Name, const TCHAR* Forbidden, FString* OutReason)
	{
		FString Reason;
		if (Name.IsEmpty())
		{
			Reason = TEXT("a name is empty");
		}
		else if (Name == TEXT("None"))
		{
			Reason = TEXT("\"None\" stands for no name");
		}
		else if (PackageJson::FromString(Name).size() > static_cast<size_t>(MaxNameBytes))
		{
			Reason = TEXT("a name is too long for a file");
		}
		const FString ForbiddenText(Forbidden);
		for (const TCHAR Character : Name)
		{
			int32 Unused = INDEX_NONE;
			if (Reason.IsEmpty() && (Character < 0x20 || ForbiddenText.FindChar(Character, Unused)))
			{
				Reason = FString::Printf(TEXT("\"%s\" holds a character that names may not have: '%c'"), *Name, Character);
			}
		}
		if (OutReason != nullptr)
		{
			*OutReason = Reason;
		}
		return Reason.IsEmpty();
	}
}

void HostPackages::Mount(const FString& Root, const FString& Directory)
{
	FPackageStorage& Storage = FPackageStorage::Get();
	if (Storage.GetRoots().IsEmpty())
	{
		HostObjects::SetPackageLoader([](const FString& PackageName) { return Load(PackageName); });
	}
	Storage.Mount(Root, Directory);
}

TArray<FString> HostPackages::GetMountedRoots()
{
	return FPackageStorage::Get().GetRoots();
}

const TCHAR* HostPackages::GetForbiddenNameCharacters()
{
	return TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`\\*?<>");
}

bool HostPackages::IsValidAssetName(const FString& AssetName, FString* OutReason)
{
	return CheckName(AssetName, GetForbiddenNameCharacters(), OutReason);
}

bool HostPackages::IsValidPackageName(const FString& PackageName, FString* OutReason)
{
	if (PackageName.Len() >= NAME_SIZE)
	{
		if (OutReason != nullptr)
		{
			*OutReason = FString::Printf(TEXT("\"%s…\" has more than %d characters"), *PackageName.Left(MaxShownName), NAME_SIZE - 1);
		}
		return false;
	}
	for (const FString& Root : GetMountedRoots())
	{
		if (!PackageName.StartsWith(Root))
		{
			continue;
		}
		TArray<FString> Parts;
		PackageName.RightChop(Root.Len()).ParseIntoArray(Parts, TEXT("/"), false);
		for (const FString& Part : Parts)
		{
			if (!CheckName(Part, ForbiddenInPaths, OutReason))
			{
				return false;
			}
		}
		return CheckName(PackageFiles::ShortNameOf(PackageName), ForbiddenInPaths, OutReason);
	}
	if (OutReason != nullptr)
	{
		*OutReason = FString::Printf(TEXT("\"%s\" lies in none of the folders %s"), *PackageName, *FString::Join(GetMountedRoots(), TEXT(", ")));
	}
	return false;
}

HostPackages::EStored HostPackages::GetStored(const FString& PackageName)
{
	return FPackageStorage::Get().Find(PackageName).Stored;
}

FString HostPackages::FindFile(const FString& PackageName)
{
	return FPackageStorage::Get().Find(PackageName).File;
}

uint64 HostPackages::GetStorageVersion()
{
	return FPackageStorage::Get().GetVersion();
}

TArray<HostPackages::FStoredAsset> HostPackages::Scan()
{
	const FPackageStorage& Storage = FPackageStorage::Get();
	TArray<FStoredAsset> Assets;
	for (const FString& File : Storage.ListFiles())
	{
		const FString PackageName = Storage.GetPackageName(File);
		std::string Text;
		if (PackageName.Len() >= NAME_SIZE)
		{
			HostProblems::Report(File, 0, FString::Printf(TEXT("the path of this asset has more than %d characters, so that it cannot be loaded"), NAME_SIZE - 1), TEXT("Move it to a folder with a shorter path."));
			continue;
		}
		if (!IsValidPackageName(PackageName) || HostTextFiles::ReadUtf8(File, Text) != HostFiles::ERead::Done)
		{
			continue; // unreadable files report themselves; a file with such a name cannot be an asset
		}
		std::string ClassText;
		const FTopLevelAssetPath ClassPath =
			PackageJson::ReadClass(Text, ClassText) ? FTopLevelAssetPath(PackageJson::ToString(ClassText)) : FTopLevelAssetPath();
		if (ClassPath.IsNull())
		{
			HostProblems::Report(File, 0, TEXT("no \"Class\" says what kind of asset this is"),
				TEXT("Take the file back from version control, or move it out of the content folder if it is none of this project's assets."));
			continue;
		}
		Assets.Add({FName(*PackageName), FName(*PackageFiles::ShortNameOf(PackageName)), ClassPath, File});
	}
	Assets.Sort([](const FStoredAsset& Left, const FStoredAsset& Right) {
		return Left.PackageName.ToString().Compare(Right.PackageName.ToString(), ESearchCase::IgnoreCase) < 0;
	});
	return Assets;
}

UObject* HostPackages::FindMainAsset(const UPackage* Package)
{
	if (Package == nullptr)
	{
		return nullptr;
	}
	UObject* Named = StaticFindObjectFast(nullptr, const_cast<UPackage*>(Package), FName(*PackageFiles::ShortNameOf(Package->GetName())));
	return IsValid(Named) ? Named : Package->FindAssetInPackage();
}

UObject* HostPackages::LoadAsset(const FString& PackageName)
{
	UObject* Asset = FindMainAsset(Load(PackageName));
	return IsValid(Asset) ? Asset : nullptr;
}
