// Copyright Velmorant. All Rights Reserved.

#include "EngineUtils.h"

#include "UObject/Class.h"

FActorIteratorBase::FActorIteratorBase(const UWorld* InWorld, UClass* InClass, EActorIteratorFlags InFlags)
	: World(InWorld)
	, Class(InClass)
	, Flags(InFlags)
{
	// The derived constructors say so in their own words; without a class there is nothing to visit.
	if (World != nullptr && Class != nullptr)
	{
		++*this;
	}
}

void FActorIteratorBase::operator++()
{
	Current = nullptr;
	for (; LevelIndex < World->GetLevels().Num(); ++LevelIndex, ActorIndex = INDEX_NONE)
	{
		const ULevel& Level = *World->GetLevels()[LevelIndex];
		while (IsSuitable(Level) && ++ActorIndex < Level.Actors.Num())
		{
			if (IsSuitable(Level.Actors[ActorIndex]))
			{
				Current = Level.Actors[ActorIndex];
				return;
			}
		}
	}
}

bool FActorIteratorBase::IsSuitable(const ULevel& Level) const
{
	return Level.bIsVisible || !EnumHasAnyFlags(Flags, EActorIteratorFlags::OnlyActiveLevels);
}

bool FActorIteratorBase::IsSuitable(const AActor* Actor) const
{
	return Actor != nullptr && Actor->IsA(Class) && (IsValid(Actor) || !EnumHasAnyFlags(Flags, EActorIteratorFlags::SkipPendingKill)) && (Actor->IsSelected() || !EnumHasAnyFlags(Flags, EActorIteratorFlags::OnlySelectedActors));
}
