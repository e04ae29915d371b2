// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantVariantHandler.generated.h"

/** Finds and switches the variants that belong to a configurator's products. */
UCLASS()
class VELMORANTPRO_API UVelmorantVariantHandler : public UObject
{
	GENERATED_BODY()

public:
	/** The name of the variant set of a room and a group. The running model uses the same rule to find the set again. */
	UFUNCTION(BlueprintPure, Category = "Velmorant|Variants")
	static FString CombineVariantSet(const FString& RoomName, const FString& GroupName);
};
