// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Kinds/PropertyKind.h"

/** An entry of an enum, in a type of its own or in a byte. */
class FEnumKind final : public FPropertyKind
{
public:
	/** Null when the property is none. */
	static UEnum* FindEnum(const FProperty& Property);
	static int64 GetValue(const FProperty& Property, const void* Value);
	static void SetValue(const FProperty& Property, void* Value, int64 NewValue);

	virtual const FProperty* GetStorage(const FProperty& Property) const override;
	virtual FPropertyAccess::Result ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32 PortFlags) const override;
	virtual TSharedRef<SWidget> MakeValue(const TSharedRef<FPropertyNode>& Node) const override;
	virtual TArray<FName> GetTypeNames(const FProperty& Property) const override;
};
