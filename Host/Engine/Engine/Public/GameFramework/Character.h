// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Pawn.h"
#include "Character.generated.h"

/** A pawn that walks. Host: it stands where it was placed. */
UCLASS(BlueprintType)
class ENGINE_API ACharacter : public APawn
{
	GENERATED_BODY()
};
