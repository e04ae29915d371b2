// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

/** What the sources of this project have agreed on and neither the compiler nor the formatter can hold. */
namespace SourceDialect
{
	/**
	 * Each breach as "LINE: what it is":
	 * helpers of one file that are not in a named namespace, chained ?:, suites with a type prefix or the word Test in their name, and
	 * checks of a flag or of several conditions at once that do not tell what was expected.
	 *
	 * @param Path tells sources from headers by its ending
	 */
	std::vector<std::string> FindBreaches(const std::string& Path, const std::string& Source);
}
