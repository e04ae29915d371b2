// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Pawn.generated.h"

/** An actor that a controller can take possession of. Host: nothing is played, so nobody does. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API APawn : public AActor
{
	GENERATED_BODY()
};
