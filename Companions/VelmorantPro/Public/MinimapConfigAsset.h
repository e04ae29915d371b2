// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "Slate/WidgetTransform.h"
#include "MinimapConfigAsset.generated.h"

/** One floor of the minimap. */
USTRUCT(BlueprintType)
struct VELMORANTPRO_API FMinimapFloor
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Minimap")
	FText DisplayName;

	/** Where the floor's picture stands on the screen. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Minimap")
	FWidgetTransform WidgetTransform;
};

/** The floors of a property's minimap. */
UCLASS(BlueprintType)
class VELMORANTPRO_API UMinimapConfigAsset : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Lowest floor first. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Minimap")
	TArray<FMinimapFloor> Floors;

	/** "0 (Ground floor), 1 (Gallery), 2": which floors there are, for people. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Minimap")
	FString GetFloorList() const;
};
