// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Controller.h"
#include "PlayerController.generated.h"

/** A person's controller. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API APlayerController : public AController
{
	GENERATED_BODY()
};
