// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Slate/WidgetTransform.h"
#include "MinimapLevelController.generated.h"

class UMinimapConfigAsset;

/** Shows the floors of the level's minimap. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AMinimapLevelController : public AActor
{
	GENERATED_BODY()

public:
	/** Index into the configuration's floors; -1 while none is active. */
	int32 GetActiveFloorIndex() const { return ActiveFloorIndex; }

	UMinimapConfigAsset* GetMinimapConfiguration() const { return MinimapConfiguration; }

	/** @return whether there is such a floor; otherwise the active floor stays. */
	bool SetActiveFloor(int32 FloorIndex);

	/** Whether one of the configuration's floors is active. */
	UFUNCTION(BlueprintPure, Category = "MinimapLevelController")
	bool HasActiveFloor() const;

	/** Where the active floor's picture stands on the screen; the identity when none is active. */
	UFUNCTION(BlueprintPure, Category = "MinimapLevelController")
	FWidgetTransform GetActiveFloorTransform() const;

private:
	UPROPERTY(EditAnywhere, Category = "MinimapLevelController")
	TObjectPtr<UMinimapConfigAsset> MinimapConfiguration;

	UPROPERTY(EditAnywhere, Category = "MinimapLevelController")
	int32 ActiveFloorIndex = -1;
};
