// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "UObject/SoftObjectPath.h"
#include "VelmorantAssets.generated.h"

/** Replaces how single rooms, groups or products of a configurator are shown. */
UCLASS(BlueprintType)
class VELMORANTPRO_API UVelmorantConfiguratorItemOverride : public UDataAsset
{
	GENERATED_BODY()

public:
	/** The configurator whose items are replaced. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FName ConfiguratorName;
};

/** Which level shows which part of the property. */
UCLASS(BlueprintType)
class VELMORANTPRO_API UVelmorantMapsLinkerConfig : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Levels by the name under which they are reached. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Maps")
	TMap<FName, FSoftObjectPath> Maps;
};

/** An action that an interactive spot can run; subclassed in Blueprints. */
UCLASS(Blueprintable, Abstract)
class VELMORANTPRO_API UVlmISPActionsBase : public UObject
{
	GENERATED_BODY()
};

/** An action that a unit volume can run; subclassed in Blueprints. */
UCLASS(Blueprintable, Abstract)
class VELMORANTPRO_API UUnitVolumeAction : public UObject
{
	GENERATED_BODY()
};
