// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** A key of the keyboard or a button of the mouse, known by name. Default-constructed: no key. */
struct INPUTCORE_API FKey
{
	FKey() = default;

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }

private:
	FName KeyName;
};
