// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class AActor;

/** What a person does with actors of the open level; each act is one step of undo, and none where nothing changes. */
namespace HostActors
{
	/** In order of selection. */
	TArray<AActor*> GetSelected();

	/** Selects these and nothing else. */
	void Select(const TArray<AActor*>& Actors);

	/** Blanks around the label do not count; an empty one changes nothing. */
	void Rename(AActor& Actor, const FString& Label);

	/** @param Location in the level, centimetres */
	void Move(AActor& Actor, const FVector& Location);

	/** They leave the selection first. */
	void Delete(const TArray<AActor*>& Actors);
}
