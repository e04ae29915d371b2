// Copyright Velmorant. All Rights Reserved.

#include "Engine/Level.h"

#include "Engine/World.h"

UWorld* ULevel::GetWorld() const
{
	return GetTypedOuter<UWorld>();
}

void ULevel::PreEditUndo()
{
	Super::PreEditUndo();
	ActorsBeforeUndo = Actors;
}

void ULevel::PostEditUndo()
{
	// The list is now what it was at the time of the step. What came or went since then, without a step of its own, stays so.
	TSet<const AActor*> Known;
	for (TObjectPtr<AActor>& Actor : Actors)
	{
		Actor = IsValid(Actor) ? Actor : nullptr;
		Known.Add(Actor);
	}
	for (const TObjectPtr<AActor>& Actor : ActorsBeforeUndo)
	{
		if (IsValid(Actor) && !Known.Contains(Actor))
		{
			Actors.Add(Actor);
		}
	}
	ActorsBeforeUndo.Empty();
	Super::PostEditUndo();
}
