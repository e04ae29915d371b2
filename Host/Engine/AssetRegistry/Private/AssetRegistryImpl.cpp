// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistryImpl.h"

#include "AssetFilter.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

namespace AssetRegistryImpl
{
	bool IsBelowMount(const FString& PackageName, const TArray<FString>& Roots)
	{
		for (const FString& Root : Roots)
		{
			if (PackageName.StartsWith(Root))
			{
				return true;
			}
		}
		return false;
	}

	/** Assets are the public objects that stand directly in a package; the classes of Blueprints belong to their Blueprint. */
	bool IsAsset(const UObject* Object)
	{
		return IsValid(Object) && Object->GetOuter() != nullptr && Object->GetOuter() == Object->GetPackage() && !Object->IsA<UClass>() &&
			Object->HasAnyFlags(RF_Public) && !Object->HasAnyFlags(RF_Transient | RF_ClassDefaultObject);
	}
}

const TArray<FAssetData>& FAssetRegistryImpl::GetOnDisk() const
{
	if (SearchedVersion != HostPackages::GetStorageVersion())
	{
		SearchedVersion = HostPackages::GetStorageVersion();
		OnDisk.Empty();
		for (const HostPackages::FStoredAsset& Stored : HostPackages::Scan())
		{
			FString Folder;
			Stored.PackageName.ToString().Split(TEXT("/"), &Folder, nullptr, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			OnDisk.Emplace(Stored.PackageName, FName(*Folder), Stored.AssetName, Stored.ClassPath);
		}
	}
	return OnDisk;
}

TArray<FAssetData> FAssetRegistryImpl::Collect(bool bIncludeOnlyOnDiskAssets) const
{
	TArray<FAssetData> Assets = GetOnDisk();
	if (bIncludeOnlyOnDiskAssets)
	{
		return Assets;
	}
	TMap<FAssetData, int32> Known;
	for (int32 Index = 0; Index < Assets.Num(); ++Index)
	{
		Known.Add(Assets[Index], Index);
	}
	const auto AddFromMemory = [&Assets, &Known](const UObject* Object) {
		const FAssetData Asset(Object);
		if (const int32* Index = Known.Find(Asset))
		{
			Assets[*Index] = Asset; // what is in memory may have been replaced by another class
			return;
		}
		Known.Add(Asset, Assets.Add(Asset));
	};

	Created.RemoveAll([](const TWeakObjectPtr<UObject>& Object) { return !Object.IsValid(); });
	for (const TWeakObjectPtr<UObject>& Object : Created)
	{
		if (AssetRegistryImpl::IsAsset(Object.Get()))
		{
			AddFromMemory(Object.Get());
		}
	}
	// Assets that nobody announced: a script or a test can make one with NewObject() alone.
	const TArray<FString> Roots = HostPackages::GetMountedRoots();
	for (TObjectIterator<UPackage> It; It; ++It)
	{
		UObject* Asset = AssetRegistryImpl::IsBelowMount(It->GetName(), Roots) ? HostPackages::FindMainAsset(*It) : nullptr;
		if (Asset != nullptr && AssetRegistryImpl::IsAsset(Asset))
		{
			AddFromMemory(Asset);
		}
	}
	return Assets;
}

bool FAssetRegistryImpl::GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool) const
{
	if (Filter.IsEmpty())
	{
		return false;
	}
	const FAssetFilter Wanted(Filter);
	for (const FAssetData& Asset : Collect(Filter.bIncludeOnlyOnDiskAssets))
	{
		if (Wanted.Fits(Asset))
		{
			OutAssetData.Add(Asset);
		}
	}
	return true;
}

bool FAssetRegistryImpl::GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const
{
	FARFilter Filter;
	Filter.ClassPaths.Add(ClassPathName);
	Filter.bRecursiveClasses = bSearchSubClasses;
	return GetAssets(Filter, OutAssetData, true);
}

bool FAssetRegistryImpl::GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.PackagePaths.Add(PackagePath);
	Filter.bRecursivePaths = bRecursive;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData, true);
}

bool FAssetRegistryImpl::GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	OutAssetData.Append(Collect(bIncludeOnlyOnDiskAssets));
	return true;
}

FAssetData FAssetRegistryImpl::GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.SoftObjectPaths.Add(ObjectPath);
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	TArray<FAssetData> Found;
	GetAssets(Filter, Found, true);
	return Found.IsEmpty() ? FAssetData() : Found[0];
}

void FAssetRegistryImpl::SearchAllAssets(bool)
{
	SearchedVersion = 0;
	GetOnDisk();
}

void FAssetRegistryImpl::AssetCreated(UObject* NewAsset)
{
	if (NewAsset == nullptr)
	{
		return;
	}
	Created.Add(NewAsset);
}

void FAssetRegistryImpl::AssetDeleted(UObject* DeletedAsset)
{
	Created.RemoveAll([DeletedAsset](const TWeakObjectPtr<UObject>& Object) { return Object == DeletedAsset; });
}
