// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

namespace UE::Text::Private
{
	/** What all copies of a text share. Without translations the display string is the source string. */
	struct FTextData
	{
		FString Display;
		FString Namespace;
		FString Key; // empty: cannot be translated
		uint32 Flags = 0;
	};

	/** An integer with digit groups: "-1,234". */
	FString FormatInteger(bool bNegative, uint64 Magnitude);
	/** With digit groups and at most three digits behind the point, the last one rounded to even. */
	FString FormatReal(double Value);
}
