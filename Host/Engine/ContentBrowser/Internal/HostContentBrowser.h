// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "HostToolMenus.h"

/**
 * What a user sees of the content browser and does in it, without a window.
 * Everything here belongs to the running editor.
 */
namespace HostContentBrowser
{
	/** One call that showed assets. */
	struct FSync
	{
		TArray<FAssetData> Assets;
		bool bAllowLockedBrowsers = false;
		bool bFocusContentBrowser = true;
		FName InstanceName;
		bool bNewSpawnBrowser = false;
	};

	/** Oldest first. */
	const TArray<FSync>& GetSyncHistory();

	/** Showing assets selects them too. */
	void SetSelection(const TArray<FAssetData>& Assets);
	const TArray<FAssetData>& GetSelection();

	/** The context menu of the selected assets, top to bottom. Dynamic entries are built for this call. Empty without a selection. */
	TArray<FHostMenuEntry> GetContextMenu();

	/** The same menu as a widget tree, to look at and to click in; null when there is none. */
	TSharedPtr<SWidget> OpenContextMenu();

	/** Picks an entry of that menu by its label, else by its name. Refused, with the reason, when it is not there or does not run. */
	FHostInputResult RunContextMenuEntry(const FString& LabelOrName);
}
