// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPlacementModeModule.h"
#include "Math/Transform.h"

class AActor;

/** What the placement panel would show, and what dragging from it would do. Nothing while the module PlacementMode is not loaded. */
namespace HostPlacement
{
	/** Handles by sort order; equal ones in order of registration. */
	TArray<FName> GetCategories();

	/** By name when the category is sortable, otherwise by sort order; equal ones in order of registration. */
	TArray<TSharedRef<FPlaceableItem>> GetItems(FName Category);

	/**
	 * Puts an actor of the item into the open level and selects it and nothing else: one step of undo.
	 * @return null, with the reason, when the item's asset is missing, no actor can be made of it, or no level is open
	 */
	AActor* Place(const FPlaceableItem& Item, const FTransform& Transform, FText& OutReason);
}
