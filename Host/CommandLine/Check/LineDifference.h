// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <string_view>

namespace LineDifference
{
	/** The lines of New that Old does not have, or not as often, in order. Both UTF-8; line ends do not count, nor does the order of lines. */
	TArray<FString> GetAdded(std::string_view Old, std::string_view New);
}
