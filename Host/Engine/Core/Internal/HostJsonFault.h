// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

#include <string_view>

/** Why a text that a parser refused is no JSON. */
struct FHostJsonFault
{
	int32 Line = 1; // one-based
	FString Message; // half a sentence with the column. Never the text that stands there: it may be secret
};

namespace HostJsonFault
{
	constexpr int32 MaxDepth = 256; // of objects and arrays in each other; those who look into documents call themselves at each

	/** Whether Text goes deeper than that, and where. Looks at brackets outside of strings only, so it need not be JSON. */
	bool IsTooDeep(std::string_view Text, FHostJsonFault& OutFault);

	/** Text is UTF-8. For a text that is JSON after all, the message says nothing. */
	FHostJsonFault Find(std::string_view Text);
}
