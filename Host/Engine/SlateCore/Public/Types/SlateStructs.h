// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** A width or height in Slate units that may be unset. */
struct FOptionalSize
{
	FOptionalSize() = default;
	FOptionalSize(const float InSize)
		: Size(InSize)
		, bSet(true)
	{
	}

	bool IsSet() const { return bSet; }
	float Get() const { return Size; }

private:
	float Size = 0.0f;
	bool bSet = false;
};
