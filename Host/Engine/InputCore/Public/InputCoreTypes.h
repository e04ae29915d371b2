// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** A key of the keyboard or a button of the mouse, known by name. Default-constructed: no key. */
struct INPUTCORE_API FKey
{
	FKey() = default;

	bool IsValid() const { return KeyName != NAME_None; }
	FString ToString() const { return KeyName.ToString(); }

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }

private:
	FName KeyName;
};
