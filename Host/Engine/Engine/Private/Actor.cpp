// Copyright Velmorant. All Rights Reserved.

#include "GameFramework/Actor.h"

#include "Engine/Level.h"
#include "Engine/World.h"
#include "UObject/Class.h"

namespace Actor
{
	/** "PointLight" for the first, "PointLight2" for the second: the number comes from the object's name, so nothing is searched. */
	FString MakeDefaultLabel(const AActor& Actor)
	{
		FString Label = Actor.GetClass()->GetName();
		Label.RemoveFromEnd(TEXT("_C"), ESearchCase::CaseSensitive); // a Blueprint's class
		const int32 Number = Actor.GetFName().GetNumber(); // one more than the number that shows, 0 for none
		return Number > 1 ? Label + FString::FromInt(Number) : Label;
	}
}

bool AActor::SetActorLocation(const FVector& NewLocation)
{
	ActorLocation = NewLocation;
	return true;
}

bool AActor::SetActorRotation(FRotator NewRotation)
{
	ActorRotation = NewRotation;
	return true;
}

void AActor::SetActorScale3D(FVector NewScale3D)
{
	ActorScale = NewScale3D;
}

ULevel* AActor::GetLevel() const
{
	return Cast<ULevel>(GetOuter());
}

UWorld* AActor::GetWorld() const
{
	const ULevel* Level = GetLevel();
	return Level != nullptr ? Level->GetWorld() : nullptr;
}

void AActor::PostEditUndo()
{
	bActorIsBeingDestroyed = !IsValid(this); // an undo may have spawned or destroyed it
	Super::PostEditUndo();
}

const FString& AActor::GetActorLabel(bool bCreateIfNone) const
{
	if (bCreateIfNone && ActorLabel.IsEmpty() && !HasAnyFlags(RF_ClassDefaultObject))
	{
		ActorLabel = Actor::MakeDefaultLabel(*this);
	}
	return ActorLabel;
}

void AActor::SetActorLabel(const FString& NewActorLabel, bool bMarkDirty)
{
	if (ActorLabel.Equals(NewActorLabel))
	{
		return;
	}
	Modify(bMarkDirty);
	ActorLabel = NewActorLabel;
}

bool AActor::Destroy(bool, bool bShouldModifyLevel)
{
	UWorld* World = GetWorld();
	return World != nullptr && World->DestroyActor(this, false, bShouldModifyLevel);
}
