// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Widgets are made with SNew and stay where they are made: no copies. */
class SLATECORE_API FSlateControlledConstruction
{
public:
	FSlateControlledConstruction() = default;
	virtual ~FSlateControlledConstruction() = default;

	FSlateControlledConstruction(const FSlateControlledConstruction&) = delete;
	FSlateControlledConstruction& operator=(const FSlateControlledConstruction&) = delete;
};
