// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <cstddef>
#include <string_view>

/** How a line of a text ends. */
enum class ELineEnd : uint8
{
	None, // with the text; for a line that is new: whatever is usual in its file
	Lf,
	CrLf,
	Cr
};

struct FTextLine
{
	std::string_view Text; // without its end
	ELineEnd End = ELineEnd::None;
};

/**
 * Walks the lines of a UTF-8 text, from the top or from the bottom, in time linear in its length. Lines end with CRLF, LF or a lone CR; an
 * end at the very end of the text begins no further line. Offsets count bytes of the text.
 */
class FTextLines
{
public:
	/** Before the line that begins at Begin. */
	explicit FTextLines(std::string_view InText, size_t Begin = 0)
		: Text(InText)
		, LineBegin(Begin)
		, NextBegin(Begin)
	{
	}

	/** Behind the last line: for StepBack(). A walk goes in one direction only. */
	static FTextLines FromEnd(std::string_view Text) { return FTextLines(Text, Text.size()); }

	/** False behind the last line. */
	bool Advance();

	/** False before the first line. */
	bool StepBack();

	std::string_view Get() const { return Line.Text; }
	const FTextLine& GetLine() const { return Line; }
	size_t GetBegin() const { return LineBegin; }
	size_t GetNextBegin() const { return NextBegin; }

private:
	static constexpr size_t NotSearched = static_cast<size_t>(-1);

	std::string_view Text;
	FTextLine Line;
	size_t LineBegin;
	size_t NextBegin;
	size_t Feed = NotSearched; // the nearest line feed on the way, kept: a text may have none for megabytes
};
