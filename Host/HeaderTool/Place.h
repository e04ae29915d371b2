// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <compare>

namespace HeaderTool
{
	/** A word of a header, by its first letter. Lines and columns count from 1, a tab is one column. */
	struct FPlace
	{
		int Line = 0; // 0: nowhere, or the file as a whole
		int Column = 0; // 0: the line as a whole

		bool IsSet() const { return Line > 0; }
		auto operator<=>(const FPlace&) const = default;
	};
}
