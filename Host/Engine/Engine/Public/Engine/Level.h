// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Level.generated.h"

class AActor;
class UWorld;

/** The actors of one map file. Its outer is the world. */
UCLASS()
class ENGINE_API ULevel : public UObject
{
	GENERATED_BODY()

public:
	/** In order of spawning or of the file. An entry is null where an actor was destroyed, until the level is saved. */
	UPROPERTY()
	TArray<TObjectPtr<AActor>> Actors;

	/** Levels that do not show are not active: iteration leaves them out. */
	bool bIsVisible = true;

	//~ Begin UObject
	virtual UWorld* GetWorld() const override;
	virtual void PreEditUndo() override;
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	TArray<TObjectPtr<AActor>> ActorsBeforeUndo; // set while an undo or redo changes the level
};
