// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/UnrealType.h"

/** An enum stored in its own integer type. */
class FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty)

public:
	/** Takes the underlying property over. */
	FEnumProperty(UEnum* InEnum, FNumericProperty* InUnderlying)
		: FProperty(InUnderlying->GetElementSize(), InUnderlying->GetMinAlignment())
		, Enum(InEnum)
		, Underlying(InUnderlying)
	{
	}
	~FEnumProperty() override { delete Underlying; }

	UEnum* GetEnum() const { return Enum; }
	FNumericProperty* GetUnderlyingProperty() const { return Underlying; }
	DECLARE_PROPERTY_VALUES()

protected:
	void OnOwnerSet() override { Adopt(Underlying); }

private:
	UEnum* Enum;
	FNumericProperty* Underlying;
};
