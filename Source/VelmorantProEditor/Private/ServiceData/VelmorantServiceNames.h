// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringView.h"
#include "UObject/NameTypes.h"

/** Texts of the service as names. They may be longer than any name; those that only differ further on share one. */
namespace VelmorantServiceNames
{
	/** As much of the text as a name holds. */
	inline FStringView Shorten(FStringView Text)
	{
		return Text.Left(NAME_SIZE - 1);
	}

	inline FName Make(FStringView Text)
	{
		return FName(Shorten(Text));
	}
}
