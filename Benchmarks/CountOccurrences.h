// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <cstdint>
#include <cstring>
#include <string>

/** How often Wanted occurs in All, overlaps included, with the C library's search. What other searches are compared with. */
inline std::int64_t CountOccurrences(const std::string& All, const std::string& Wanted)
{
	std::int64_t NumFound = 0;
	const char* const End = All.data() + All.size();
	for (const char* At = All.data(); (At = static_cast<const char*>(memmem(At, static_cast<size_t>(End - At), Wanted.data(), Wanted.size()))) != nullptr; ++At)
	{
		++NumFound;
	}
	return NumFound;
}
