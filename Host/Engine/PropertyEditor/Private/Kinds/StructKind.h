// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** Structs: the engine's own small ones as one text, others as their members. Colours have a swatch. */
class FStructKind final : public FPropertyKind
{
public:
	virtual bool IsEndless(const FProperty& Property, const void* Value) const override;
	virtual bool IsShownWhole(const FProperty& Property) const override;
	virtual TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node) const override;
	virtual TSharedRef<SWidget> MakeExtension(const TSharedRef<FPropertyNode>& Node) const override;
	virtual const UStruct* FindStruct(const FProperty& Property) const override;
	virtual TArray<FName> GetTypeNames(const FProperty& Property) const override;
};
