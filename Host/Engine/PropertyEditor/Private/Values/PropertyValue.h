// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PropertyHandle.h"

class FPropertyNode;

/** Values of properties as C++ types and as texts. */
namespace PropertyValue
{
	/** The property that stores the value: of an enum, its integer. */
	const FProperty* GetStorage(const FPropertyNode& Node);

	/** Where the value lies, if all objects agree; OutValues is empty unless the result is a success. */
	FPropertyAccess::Result FindOne(const FPropertyNode& Node, TArray<void*>& OutValues);

	/** What an object property leads to; soft references are loaded. */
	FPropertyAccess::Result ReadObject(const FPropertyNode& Node, UObject*& OutObject);
	FPropertyAccess::Result WriteObject(FPropertyNode& Node, UObject* Object, EPropertyValueSetFlags::Type Flags);

	FPropertyAccess::Result ReadText(const FPropertyNode& Node, FString& OutText, int32 PortFlags);
	FPropertyAccess::Result WriteText(FPropertyNode& Node, const FString& Text, EPropertyValueSetFlags::Type Flags);

	/** As people read it. */
	FPropertyAccess::Result ReadDisplayText(const FPropertyNode& Node, FString& OutText, int32 PortFlags);

	/** The enum of a value that is one, in a type of its own or in a byte; null otherwise. */
	UEnum* GetEnum(const FProperty& Property);
}
