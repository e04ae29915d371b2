// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

namespace EModifierKey
{
	typedef uint8 Type;

	constexpr Type None = 0;
	constexpr Type Control = 1 << 0;
	constexpr Type Alt = 1 << 1;
	constexpr Type Shift = 1 << 2;
	constexpr Type Command = 1 << 3;
}

/** A key with the modifier keys held down with it. Default-constructed: no chord. */
struct SLATE_API FInputChord
{
	FInputChord() = default;

	bool IsValidChord() const { return Key.IsValid(); }

	/** "Ctrl+Shift+S"; empty for no chord. */
	FText GetInputText() const;

	FKey Key;
	EModifierKey::Type Modifiers = EModifierKey::None;
};
