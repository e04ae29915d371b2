// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** Refuses numbers that are too large for their type. A fraction may go. */
class FIntegerKind final : public FPropertyKind
{
public:
	virtual bool Import(const FProperty& Property, const FString& Text, void* Value, UObject* Owner) const override;
};

/** Refuses infinity and what is no number, and shows no needless digits. */
class FFloatKind final : public FPropertyKind
{
public:
	virtual FString GetEditText(const FPropertyNode& Node, const void* Value) const override;
	virtual bool IsEndless(const FProperty& Property, const void* Value) const override;
};
