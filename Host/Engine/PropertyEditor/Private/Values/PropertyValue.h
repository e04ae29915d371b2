// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "PropertyHandle.h"

class FPropertyNode;

/** Values of all objects of a property at once; what differs between kinds of property is theirs to say. */
namespace PropertyValue
{
	/** Where the value lies, if all objects agree; OutValues is empty unless the result is a success. */
	FPropertyAccess::Result FindOne(const FPropertyNode& Node, TArray<void*>& OutValues);

	FPropertyAccess::Result ReadText(const FPropertyNode& Node, FString& OutText, int32 PortFlags);
	FPropertyAccess::Result WriteText(FPropertyNode& Node, const FString& Text, EPropertyValueSetFlags::Type Flags);
}
