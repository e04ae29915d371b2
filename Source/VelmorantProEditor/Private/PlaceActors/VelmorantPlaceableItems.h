// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPlacementModeModule.h"

/** What the toolkit offers in the editor's Place Actors panel. */
namespace VelmorantPlaceableItems
{
	inline const FName CategoryHandle = TEXT("VelmorantActors");

	FPlacementCategoryInfo MakeCategory();

	/** In the order shown. */
	TArray<TSharedRef<FPlaceableItem>> MakeItems();
}
