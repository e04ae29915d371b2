// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

/**
 * Finds assets, on disk and in memory, without loading them.
 *
 * The mounted folders are read on the first query that needs them, never at start-up.
 * Host: results are ordered, so that runs can be compared: assets with a file by package name, then those only in memory in
 * the order in which they were made. Module code must not rely on it.
 * Files that the engine wrote in its binary form are of unknown class and never part of a result.
 */
class IAssetRegistry
{
public:
	virtual ~IAssetRegistry() = default;

	static IAssetRegistry& GetChecked();

	/**
	 * Appends what fits the filter.
	 * @param bSkipARFilteredAssets leaves out what asset classes hide from lists; no class here hides anything
	 * @return false for an invalid (empty) filter
	 */
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData, bool bSkipARFilteredAssets = true) const = 0;

	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const = 0;
	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;

	/** An invalid FAssetData when there is no such asset. */
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false) const = 0;

	/** Reads the mounted folders again, now. */
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;

	/** Whoever makes an asset says so, through FAssetRegistryModule::AssetCreated(). */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;
};
