// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Actor.generated.h"

class ULevel;
class UWorld;

/**
 * Something that stands in a level. Only UWorld::SpawnActor() and loading a level make actors; the level keeps them alive.
 * Host: an actor carries location, rotation and scale itself; it has no components.
 */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

	friend class USelection;
	friend class UWorld;

public:
	FVector GetActorLocation() const { return ActorLocation; }

	/** @return whether the actor was moved, which never fails. */
	bool SetActorLocation(const FVector& NewLocation);

	FRotator GetActorRotation() const { return ActorRotation; }
	bool SetActorRotation(FRotator NewRotation);

	FVector GetActorScale3D() const { return ActorScale; }
	void SetActorScale3D(FVector NewScale3D);

	bool IsHidden() const { return bHidden; }

	/** The level it stands in; null for a default object. */
	ULevel* GetLevel() const;

	/**
	 * The name that people see in the editor. One that has none gets its class's name, with a number from the second such actor on,
	 * unless bCreateIfNone forbids.
	 */
	const FString& GetActorLabel(bool bCreateIfNone = true) const;

	void SetActorLabel(const FString& NewActorLabel, bool bMarkDirty = true);

	/**
	 * Takes the actor out of its level and marks it as garbage.
	 * @return false for an actor that stands in no level, or is going already.
	 */
	bool Destroy(bool bNetForce = false, bool bShouldModifyLevel = true);

	bool IsActorBeingDestroyed() const { return bActorIsBeingDestroyed; }

	/** Whether the editor has it selected. */
	bool IsSelected() const { return bSelected; }

	//~ Begin UObject
	virtual UWorld* GetWorld() const override;
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	UPROPERTY(EditAnywhere, Category = "Transform")
	FVector ActorLocation = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, Category = "Transform")
	FRotator ActorRotation = FRotator::ZeroRotator;

	UPROPERTY(EditAnywhere, Category = "Transform")
	FVector ActorScale = FVector(1.0, 1.0, 1.0);

	UPROPERTY(EditAnywhere, Category = "Actor")
	mutable FString ActorLabel;

	UPROPERTY(EditAnywhere, Category = "Rendering")
	bool bHidden = false;

	bool bActorIsBeingDestroyed = false;
	bool bSelected = false; // kept by USelection
};
