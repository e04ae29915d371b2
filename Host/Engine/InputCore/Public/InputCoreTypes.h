// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** A key of the keyboard or a button of the mouse, known by name. Default-constructed: no key. */
struct INPUTCORE_API FKey
{
	FKey() = default;
	FKey(const FName InName)
		: KeyName(InName)
	{
	}
	FKey(const TCHAR* InName)
		: KeyName(InName)
	{
	}
	FKey(const ANSICHAR* InName)
		: KeyName(InName)
	{
	}

	bool IsValid() const { return KeyName != NAME_None; }
	FName GetFName() const { return KeyName; }
	FString ToString() const { return KeyName.ToString(); }

	/** What a menu prints beside an entry; the key's name here, in no language. */
	FText GetDisplayName() const { return FText::FromName(KeyName); }

	friend bool operator==(const FKey& A, const FKey& B) { return A.KeyName == B.KeyName; }
	friend bool operator!=(const FKey& A, const FKey& B) { return A.KeyName != B.KeyName; }

private:
	FName KeyName;
};
