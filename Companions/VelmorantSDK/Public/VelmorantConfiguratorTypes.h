// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantConfiguratorTypes.generated.h"

/** One thing a buyer can choose within a group: a floor covering, a kitchen front. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantConfigProduct
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FString Name;
};

/** Products that replace one another. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantConfigGroup
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FString Name;

	/** In the service's order. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	TArray<FVelmorantConfigProduct> Products;
};

USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantConfigRoom
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	FString Name;

	/** In the service's order. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	TArray<FVelmorantConfigGroup> Groups;
};

/** All that one configurator offers. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantConfigUnit
{
	GENERATED_BODY()

	/** In the service's order. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Configurator")
	TArray<FVelmorantConfigRoom> Rooms;
};

/** A unit group that a configurator applies to. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantConfiguratorUnitGroup
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Configurator")
	FString Key;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Configurator")
	FString Name;
};
