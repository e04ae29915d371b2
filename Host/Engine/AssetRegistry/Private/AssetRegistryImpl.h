// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "CoreMinimal.h"
#include "HostPackages.h"
#include "UObject/WeakObjectPtrTemplates.h"

/** Answers queries from an index of the mounted folders, read on first use, and from the objects in memory. */
class FAssetRegistryImpl : public IAssetRegistry
{
public:
	//~ Begin IAssetRegistry
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets) const override;
	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const override;
	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const override;
	virtual void SearchAllAssets(bool bSynchronousSearch) override;
	virtual void AssetCreated(UObject* NewAsset) override;
	virtual void AssetDeleted(UObject* DeletedAsset) override;
	//~ End IAssetRegistry

private:
	/** Every asset that the filter could want, in the order results have. */
	TArray<FAssetData> Collect(bool bIncludeOnlyOnDiskAssets) const;

	const TArray<FAssetData>& GetOnDisk() const;

	mutable TArray<FAssetData> OnDisk; // by package name
	mutable uint64 SearchedVersion = 0; // of the storage when OnDisk was read; 0 before the first query

	/** In order of creation, dead ones included until the next query: what gives results in memory their order. */
	mutable TArray<TWeakObjectPtr<UObject>> Created;
};
