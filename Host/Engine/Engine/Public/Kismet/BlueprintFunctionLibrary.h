// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "BlueprintFunctionLibrary.generated.h"

/** A class of static functions that Blueprints and editor scripts can call. Nobody makes objects of it. */
UCLASS(Abstract)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};
