// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

class UClass;

/** Names and inheritance of the context menus of assets: one menu per class, each below that of the parent class. */
namespace AssetContextMenu
{
	/** "ContentBrowser.AssetContextMenu.<Class>". */
	FName NameFor(const UClass* AssetClass);

	/** Makes the menu of the class and of its parents known, the parent's menu being the parent of each. Repeating it changes nothing. */
	void Register(const UClass* AssetClass);

	/** The nearest class that all assets have in common; null when one of them is of a class that is not in memory. */
	UClass* CommonClass(const TArray<FAssetData>& Assets);
}
