// Copyright Velmorant. All Rights Reserved.

#include "TerminalStyle.h"

#include <cstdlib>
#include <unistd.h>

namespace TerminalStyle
{
	EColors Chosen = EColors::Auto;

	/** A variable that is empty counts as not set. */
	std::string_view GetVariable(const char* Name)
	{
		const char* Value = std::getenv(Name);
		return Value != nullptr ? std::string_view(Value) : std::string_view();
	}

	void Choose(EColors Colors)
	{
		Chosen = Colors;
	}

	bool IsTerminal(int Output)
	{
		const std::string_view Kind = GetVariable("TERM");
		return !Kind.empty() && Kind != "dumb" && isatty(Output) != 0;
	}

	bool HasColors(int Output)
	{
		if (Chosen == EColors::Auto)
		{
			return GetVariable("NO_COLOR").empty() && IsTerminal(Output);
		}
		return Chosen == EColors::Always;
	}

	std::string_view GetCode(ETextStyle Style)
	{
		switch (Style)
		{
			case ETextStyle::Heading: return "\x1b[1m";
			case ETextStyle::Step:
			case ETextStyle::Place: return "\x1b[36m";
			case ETextStyle::Good:
			case ETextStyle::Added: return "\x1b[32m";
			case ETextStyle::Bad:
			case ETextStyle::Removed: return "\x1b[31m";
			case ETextStyle::Warning: return "\x1b[33m";
			default: return {};
		}
	}

	std::string_view Begin(int Output, ETextStyle Style)
	{
		return Style != ETextStyle::Plain && HasColors(Output) ? GetCode(Style) : std::string_view();
	}

	std::string_view End(int Output, ETextStyle Style)
	{
		return Begin(Output, Style).empty() ? std::string_view() : std::string_view("\x1b[0m");
	}

	ETextStyle OfDifferenceLine(std::string_view Line)
	{
		if (Line.starts_with("---") || Line.starts_with("+++"))
		{
			return ETextStyle::Heading;
		}
		if (Line.starts_with("@@"))
		{
			return ETextStyle::Place;
		}
		if (Line.starts_with('+'))
		{
			return ETextStyle::Added;
		}
		return Line.starts_with('-') ? ETextStyle::Removed : ETextStyle::Plain;
	}
}
