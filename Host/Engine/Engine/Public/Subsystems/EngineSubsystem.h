// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "EngineSubsystem.generated.h"

/** Made when the engine starts, gone when it exits. Get one with GEngine->GetEngineSubsystem(). */
UCLASS(Abstract)
class ENGINE_API UEngineSubsystem : public USubsystem
{
	GENERATED_BODY()
};
