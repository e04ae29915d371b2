// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Internationalization/Text.h"
#include "UObject/UnrealType.h"

/** FText. As text it keeps namespace and key: NSLOCTEXT("Namespace", "Key", "Source"), INVTEXT("Text"), or the plain text. */
class FTextProperty : public FProperty
{
	DECLARE_FIELD(FTextProperty, FProperty)

public:
	FTextProperty()
		: FProperty(sizeof(FText), alignof(FText))
	{
	}

	static const FText& GetPropertyValue(const void* Value) { return *static_cast<const FText*>(Value); }
	static void SetPropertyValue(void* Dest, const FText& Value) { *static_cast<FText*>(Dest) = Value; }
	const FText& GetPropertyValue_InContainer(const void* Container) const { return GetPropertyValue(ContainerPtrToValuePtr(Container)); }
	DECLARE_PROPERTY_VALUES()
};
