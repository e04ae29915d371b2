// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "Templates/SubclassOf.h"

/** Which actors an iteration visits. */
enum class EActorIteratorFlags
{
	AllActors = 0x00000000,
	SkipPendingKill = 0x00000001, // not those marked as garbage
	OnlySelectedActors = 0x00000002, // only those selected in the editor
	OnlyActiveLevels = 0x00000004, // not those of levels that do not show
};
ENUM_CLASS_FLAGS(EActorIteratorFlags)

/**
 * Walks the actors of a class, level by level, in the order of each level's list.
 * Actors spawned meanwhile are visited too; destroying the current one is fine. The world must not be null.
 */
class ENGINE_API FActorIteratorBase
{
public:
	explicit operator bool() const { return Current != nullptr; }
	bool operator!() const { return Current == nullptr; }

	/** Skips nothing once the end is reached. */
	void operator++();

protected:
	/** A null world is allowed only for the end of a range. */
	FActorIteratorBase(const UWorld* InWorld, UClass* InClass, EActorIteratorFlags InFlags);
	FActorIteratorBase() = default;

	AActor* GetCurrent() const { return Current; }

private:
	bool IsSuitable(const AActor* Actor) const;
	bool IsSuitable(const ULevel& Level) const;

	const UWorld* World = nullptr;
	UClass* Class = nullptr;
	EActorIteratorFlags Flags = EActorIteratorFlags::AllActors;
	int32 LevelIndex = 0;
	int32 ActorIndex = INDEX_NONE;
	AActor* Current = nullptr;
};

template<typename ActorType>
class TActorIterator : public FActorIteratorBase
{
public:
	explicit TActorIterator(const UWorld* InWorld, TSubclassOf<ActorType> InClass = ActorType::StaticClass(),
		EActorIteratorFlags InFlags = EActorIteratorFlags::OnlyActiveLevels | EActorIteratorFlags::SkipPendingKill)
		: FActorIteratorBase(InWorld, InClass, InFlags)
	{
		check(InWorld != nullptr);
	}

	/** The end of a range over any world. */
	TActorIterator() = default;

	ActorType* operator*() const { return CastChecked<ActorType>(this->GetCurrent()); }
	ActorType* operator->() const { return **this; }
};

/** Walks actors of every class, or of one that is known only when the program runs. */
class ENGINE_API FActorIterator : public FActorIteratorBase
{
public:
	explicit FActorIterator(const UWorld* InWorld, EActorIteratorFlags InFlags = EActorIteratorFlags::OnlyActiveLevels | EActorIteratorFlags::SkipPendingKill)
		: FActorIterator(InWorld, AActor::StaticClass(), InFlags)
	{
	}

	FActorIterator(const UWorld* InWorld, TSubclassOf<AActor> InClass, EActorIteratorFlags InFlags = EActorIteratorFlags::OnlyActiveLevels | EActorIteratorFlags::SkipPendingKill)
		: FActorIteratorBase(InWorld, InClass, InFlags)
	{
		check(InWorld != nullptr);
	}

	AActor* operator*() const { return this->GetCurrent(); }
	AActor* operator->() const { return this->GetCurrent(); }
};
