// Copyright Velmorant. All Rights Reserved.
// Enums in each of the forms that can be reflected.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Fuzz.generated.h"

/** How a door opens. */
UENUM(BlueprintType)
enum class EFixtureDoor : uint8
{
	/** Towards the room. */
	Inwards UMETA(DisplayName = "Into the room"),
	Outwards, // a comment behind an entry does not belong to the next one
	Sliding = 7 UMETA(Hidden),
	Folding
};

UENUM()
enum class EFixtureSides
{
	None = 0,
	North = 1 << 0,
	South = (1 << 1),
	All = North | South
};

UENUM(BlueprintType)
enum EFixturePlain : int
{
	FixturePlain_First,
	FixturePlain_Second = 4,
};

UENUM()
enum EFixtureUnsized
{
	FixtureUnsized_Only
};

UENUM(BlueprintType)
namespace EFixtureSpaced
{
	enum Type : int
	{
		Narrow,
		Wide UMETA(ToolTip = "Two \"metres\"\nor more")
	};

	inline bool IsWide(Type Value)
	{
		return Value == Wide;
	}
}
