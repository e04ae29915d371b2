// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>

/** Text out of names, files and service data, made such that a terminal shows it and does nothing else with it. */
namespace TerminalText
{
	enum class ELineFeeds
	{
		Escape, // Text is to be one line
		Keep
	};

	/**
	 * Control characters, tabs excepted, and bytes that are no UTF-8 become \x1b; marks that change the direction of writing, and the
	 * separators of lines and paragraphs, become \u202e. All else stays, backslashes too: the result is to be read, not to be read back.
	 */
	std::string Escape(std::string_view Text, ELineFeeds LineFeeds = ELineFeeds::Escape);
}
