// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPlacementModeModule.h"

/** What the placement panel would show. Nothing while the module PlacementMode is not loaded. */
namespace HostPlacement
{
	/** Handles by sort order; equal ones in order of registration. */
	TArray<FName> GetCategories();

	/** By name when the category is sortable, otherwise by sort order; equal ones in order of registration. */
	TArray<TSharedRef<FPlaceableItem>> GetItems(FName Category);
}
