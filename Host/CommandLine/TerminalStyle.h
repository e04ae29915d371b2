// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <string_view>

/** What a line is to the person who reads it. */
enum class ETextStyle : uint8
{
	Plain,
	Heading,
	Step,
	Good,
	Bad,
	Warning,
	Added,
	Removed,
	Place // in a file
};

enum class EColors : uint8
{
	Auto, // on a terminal that knows colours, unless NO_COLOR is set
	Always,
	Never
};

/** Whether and how the program colours what it prints. */
namespace TerminalStyle
{
	void Choose(EColors Colors);

	/** Whether a person looks at that output on a terminal that can move its cursor. */
	bool IsTerminal(int Output);

	/** What to send before a text, and behind it; both empty where that output is not coloured. */
	std::string_view Begin(int Output, ETextStyle Style);
	std::string_view End(int Output, ETextStyle Style);

	/** Of a line of a unified difference. */
	ETextStyle OfDifferenceLine(std::string_view Line);
}
