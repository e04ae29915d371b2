// Copyright Velmorant. All Rights Reserved.

#include "MinimapLevelController.h"

#include "MinimapConfigAsset.h"

bool AMinimapLevelController::SetActiveFloor(int32 FloorIndex)
{
	const bool bIsFloor = MinimapConfiguration && MinimapConfiguration->Floors.IsValidIndex(FloorIndex);
	if (bIsFloor)
	{
		ActiveFloorIndex = FloorIndex;
	}
	return bIsFloor;
}

bool AMinimapLevelController::HasActiveFloor() const
{
	return MinimapConfiguration && MinimapConfiguration->Floors.IsValidIndex(ActiveFloorIndex);
}

FWidgetTransform AMinimapLevelController::GetActiveFloorTransform() const
{
	return HasActiveFloor() ? MinimapConfiguration->Floors[ActiveFloorIndex].WidgetTransform : FWidgetTransform();
}
