// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

struct FAssetData;
class UObject;

/** The content browsers of the editor. */
class IContentBrowserSingleton
{
public:
	virtual ~IContentBrowserSingleton() = default;

	/** Loads the module when needed. */
	static IContentBrowserSingleton& Get();

	/**
	 * Shows the assets and selects them.
	 * @param bAllowLockedBrowsers  also browsers that the user locked to their folder
	 * @param bFocusContentBrowser  brings the browser to the front
	 * @param InstanceName          one browser, when given
	 * @param bNewSpawnBrowser      opens another browser for it
	 */
	virtual void SyncBrowserToAssets(const TArray<struct FAssetData>& AssetDataList, bool bAllowLockedBrowsers = false, bool bFocusContentBrowser = true,
		const FName& InstanceName = FName(), bool bNewSpawnBrowser = false) = 0;
	virtual void SyncBrowserToAssets(const TArray<UObject*>& AssetList, bool bAllowLockedBrowsers = false, bool bFocusContentBrowser = true,
		const FName& InstanceName = FName(), bool bNewSpawnBrowser = false) = 0;
};
