// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "UObject/SoftObjectPath.h"
#include "VelmorantConfiguratorTypes.h"
#include "VelmorantConfiguratorDataAsset.generated.h"

/** A configurator of the service as an asset: its data as last received, and the level variant sets made from it. */
UCLASS(BlueprintType)
class VELMORANTPRO_API UVelmorantConfiguratorDataAsset : public UDataAsset
{
	GENERATED_BODY()

public:
	/** The configurator's name on the service. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FName ConfiguratorName;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FVelmorantConfigUnit ConfiguratorUnit;

	/** Unset until level variant sets have been made or assigned. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FSoftObjectPath LevelVariantSets;
};
