// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Controller.generated.h"

/** What moves a pawn; made when a game starts, never placed. */
UCLASS(Abstract, NotPlaceable, NotBlueprintable)
class ENGINE_API AController : public AActor
{
	GENERATED_BODY()
};
