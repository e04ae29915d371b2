// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "SourceReader.h"

#include <compare>
#include <set>
#include <string>
#include <vector>

namespace SurfaceCheck
{
	/** What is looked at: the sources and objects of a lower layer, and of the programs that stand on it. */
	struct FSurfaceInput
	{
		std::vector<FSource> LowerSources;
		std::vector<FSource> OwnSources;
		std::vector<std::string> LowerObjects;
		std::vector<std::string> OwnObjects;
		std::set<std::string> DataWords; // all words of the programs' data files: what these may name counts as called
		std::set<std::string> GeneratedIncludes;
	};

	struct FPlace
	{
		std::string Path;
		int Line = 0;
		int LastLine = 0;

		auto operator<=>(const FPlace&) const = default;
	};

	/** Something of the lower layer that nobody needs. */
	struct FFinding
	{
		std::string Name; // of a function, qualified and with its number of parameters in brackets; or the path of a header
		std::vector<FPlace> Places; // all declarations and definitions, those in headers first

		int CountLines() const;
		std::string GetText() const;
	};

	/** Sorted by place. */
	std::vector<FFinding> FindUnneeded(const FSurfaceInput& Input);
}
