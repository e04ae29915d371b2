// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "DataAsset.generated.h"

/** An asset that is nothing but its properties. */
UCLASS(Abstract, BlueprintType)
class ENGINE_API UDataAsset : public UObject
{
	GENERATED_BODY()
};

/** A data asset that the asset manager could load on its own. */
UCLASS(Abstract, Blueprintable)
class ENGINE_API UPrimaryDataAsset : public UDataAsset
{
	GENERATED_BODY()
};
