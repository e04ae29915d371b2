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
