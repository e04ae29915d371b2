// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/SoftObjectPath.h"
#include "LevelVariantSetsActor.generated.h"

class ULevelVariantSets;

/** Makes the variants of one asset available in the level that it stands in. */
UCLASS(Blueprintable)
class VARIANTMANAGERCONTENT_API ALevelVariantSetsActor : public AActor
{
	GENERATED_BODY()

public:
	/** The asset; may be null, or name one that is not loaded. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "LevelVariantSets")
	FSoftObjectPath LevelVariantSets;

	/** Null when the asset is not in memory and bLoad is false, or cannot be loaded. */
	UFUNCTION(BlueprintCallable, Category = "LevelVariantSets")
	ULevelVariantSets* GetLevelVariantSets(bool bLoad = false);

	UFUNCTION(BlueprintCallable, Category = "LevelVariantSets")
	void SetLevelVariantSets(ULevelVariantSets* InVariantSets);
};
