// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWMinimapTool.h"

#include "Engine/World.h"
#include "Kismet/GameplayStatics.h"
#include "MinimapConfigAsset.h"
#include "MinimapLevelController.h"

void UVlmEWMinimapTool::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	FindMinimapLevelController();
}

void UVlmEWMinimapTool::FindMinimapLevelController()
{
	const UWorld* World = GetWorld();
	if (!World)
	{
		return;
	}

	AActor* Actor = UGameplayStatics::GetActorOfClass(World, AMinimapLevelController::StaticClass());
	MinimapLevelController = IsValid(Actor) ? Cast<AMinimapLevelController>(Actor) : nullptr;
	OnScanMinimapLevel();
}

bool UVlmEWMinimapTool::HasController() const
{
	return IsValid(MinimapLevelController);
}

int32 UVlmEWMinimapTool::GetActiveMinimapFloor() const
{
	return HasController() ? MinimapLevelController->GetActiveFloorIndex() : INDEX_NONE;
}

UMinimapConfigAsset* UVlmEWMinimapTool::GetMinimapConfig() const
{
	return HasController() ? MinimapLevelController->GetMinimapConfiguration() : nullptr;
}

bool UVlmEWMinimapTool::HasMinimapFloors() const
{
	const UMinimapConfigAsset* Config = GetMinimapConfig();
	return Config && !Config->Floors.IsEmpty();
}

bool UVlmEWMinimapTool::GetMinimapFloorRange(int32& MinFloor, int32& MaxFloor) const
{
	MinFloor = 1;
	MaxFloor = 0;
	if (!HasMinimapFloors())
	{
		return false;
	}
	MaxFloor = GetMinimapConfig()->Floors.Num() + 1; // one above the floor count on purpose
	return true;
}

bool UVlmEWMinimapTool::SetActiveMinimapFloor(int32 FloorIndex)
{
	return HasController() && MinimapLevelController->SetActiveFloor(FloorIndex);
}

void UVlmEWMinimapTool::SetActiveFloorWidgetTransform(const FWidgetTransform& NewTransform)
{
	UMinimapConfigAsset* Config = GetMinimapConfig();
	const int32 ActiveFloor = GetActiveMinimapFloor();
	if (Config && Config->Floors.IsValidIndex(ActiveFloor))
	{
		Config->Floors[ActiveFloor].WidgetTransform = NewTransform;
	}
}
