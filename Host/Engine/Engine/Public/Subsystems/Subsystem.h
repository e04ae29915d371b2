// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Subsystem.generated.h"

class FSubsystemCollectionBase;

/** One object per class and owner, made and torn down with the owner. */
UCLASS(Abstract)
class ENGINE_API USubsystem : public UObject
{
	GENERATED_BODY()

public:
	/** Asked of the class default object: no means that this owner gets none. */
	virtual bool ShouldCreateSubsystem([[maybe_unused]] UObject* Outer) const { return true; }

	/** Runs once, after those whom Collection.InitializeDependency() asks for. */
	virtual void Initialize([[maybe_unused]] FSubsystemCollectionBase& Collection) {}

	/** Runs once, before the owner goes; in reverse order of Initialize(). */
	virtual void Deinitialize() {}
};
