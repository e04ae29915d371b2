// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "LevelVariantSetsActor.h"
#include "VelmorantLevelVariantSetsActor.generated.h"

class UVelmorantConfiguratorDataAsset;

/** The level variant sets of a configurator, in the level. */
UCLASS(Blueprintable)
class VELMORANTPRO_API AVelmorantLevelVariantSetsActor : public ALevelVariantSetsActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	TObjectPtr<UVelmorantConfiguratorDataAsset> ConfiguratorData;
};
