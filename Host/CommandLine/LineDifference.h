// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <cstddef>
#include <string_view>
#include <vector>

/** Compares texts line by line. Texts are UTF-8. */
namespace LineDifference
{
	using FLines = std::vector<std::string_view>;

	/** Without their ends, which may be CRLF, LF or a lone CR. The lines point into Text. */
	FLines Split(std::string_view Text);

	/**
	 * Takes away whole lines that both texts begin with, and that both end with: large files with small changes need not be split.
	 * @param Context so many equal lines stay on each side
	 * @return what went at the beginning
	 */
	std::string_view DropCommonEnds(std::string_view& Old, std::string_view& New, size_t Context = 0);

	/** Lines [OldBegin, OldEnd) of the old text give way to lines [NewBegin, NewEnd) of the new one. */
	struct FEdit
	{
		size_t OldBegin = 0;
		size_t OldEnd = 0;
		size_t NewBegin = 0;
		size_t NewEnd = 0;
	};

	/**
	 * From the top. Where lines were only added, or only taken out, each run of them is an edit, found in linear time; otherwise the fewest
	 * lines that can be. Where that would take long, all between the first and the last difference is one edit.
	 */
	std::vector<FEdit> FindEdits(const FLines& Old, const FLines& New);

	/** The lines of New that Old does not have, or not as often, in order. Neither line ends nor the order of lines count. */
	TArray<FString> GetAdded(std::string_view Old, std::string_view New);

	FString ToString(std::string_view Line);
}
