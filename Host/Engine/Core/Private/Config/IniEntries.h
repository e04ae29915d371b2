// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "HostLines.h"

#include <cstddef>
#include <string>
#include <string_view>

/** A line of an ini file. */
struct FIniLine
{
	int32 Number = 0; // one-based
	size_t Begin = 0; // offset in the text
};

/** Walks a text by its lines, but those that a backslash joins are one. */
class FIniEntries
{
public:
	explicit FIniEntries(std::string_view Text, FIniLine First = {1, 0});

	bool Advance();

	/** Without its end; the backslash of one that is continued included. */
	std::string_view GetFirstLine() const { return FirstLine; }

	/** The joined lines, without their ends and backslashes. Good until the next step. */
	std::string_view GetWhole();

	ELineEnd GetLineEnd() const { return Lines.GetLine().End; }

	FIniLine GetPlace() const { return Place; }
	FIniLine GetNextPlace() const { return {NextNumber, Lines.GetNextBegin()}; }

private:
	std::string_view Text;
	FTextLines Lines;
	std::string_view FirstLine;
	FIniLine Place;
	int32 NextNumber;
	std::string Joined;
};
