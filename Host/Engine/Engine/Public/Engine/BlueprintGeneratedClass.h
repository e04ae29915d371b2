// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "BlueprintGeneratedClass.generated.h"

/** The class that a Blueprint stands for, "<Blueprint>_C" beside it in its package. */
UCLASS()
class ENGINE_API UBlueprintGeneratedClass : public UClass
{
	GENERATED_BODY()
};
