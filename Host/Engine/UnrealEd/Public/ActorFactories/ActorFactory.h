// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ActorFactory.generated.h"

/** Puts actors made from an asset into a level. Host: placement items name their factory, nothing is dragged into a viewport. */
UCLASS(Abstract)
class UNREALED_API UActorFactory : public UObject
{
	GENERATED_BODY()
};
