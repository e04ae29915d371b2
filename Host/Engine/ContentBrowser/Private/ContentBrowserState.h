// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostContentBrowser.h"

/** What the content browser of one editor remembers. */
struct FContentBrowserState
{
	TArray<HostContentBrowser::FSync> SyncHistory;
	TArray<FAssetData> Selection;

	static FContentBrowserState& Get();
};
