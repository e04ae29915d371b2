// Copyright Velmorant. All Rights Reserved.

#include "HostLines.h"

#include <algorithm>
#include <cstring>

namespace HostLines
{
	/** Offset behind the last Character in [Begin, End), Begin when there is none. */
	size_t FindBehindLast(std::string_view Text, char Character, size_t Begin, size_t End)
	{
		const void* Found = memrchr(Text.data() + Begin, Character, End - Begin);
		return Found != nullptr ? static_cast<size_t>(static_cast<const char*>(Found) - Text.data()) + 1 : Begin;
	}

	size_t LengthOf(ELineEnd End)
	{
		const size_t Single = End == ELineEnd::None ? 0 : 1;
		return End == ELineEnd::CrLf ? 2 : Single;
	}

	/** How a text ends. */
	ELineEnd FindEnd(std::string_view Text)
	{
		if (Text.ends_with('\n'))
		{
			return Text.ends_with("\r\n") ? ELineEnd::CrLf : ELineEnd::Lf;
		}
		return Text.ends_with('\r') ? ELineEnd::Cr : ELineEnd::None;
	}
}

bool FTextLines::Advance()
{
	if (NextBegin >= Text.size())
	{
		return false;
	}
	LineBegin = NextBegin;
	if (Feed == NotSearched || Feed < LineBegin)
	{
		Feed = std::min(Text.find('\n', LineBegin), Text.size());
	}
	const std::string_view UpToFeed = Text.substr(LineBegin, Feed - LineBegin);
	Line.Text = UpToFeed.substr(0, UpToFeed.find('\r'));
	const size_t End = LineBegin + Line.Text.size();
	NextBegin = std::min(End + (End + 1 == Feed ? 2 : 1), Text.size()); // CRLF is one end
	Line.End = HostLines::FindEnd(Text.substr(End, NextBegin - End));
	return true;
}

bool FTextLines::StepBack()
{
	if (LineBegin == 0)
	{
		return false;
	}
	NextBegin = LineBegin;
	Line.End = HostLines::FindEnd(Text.substr(0, NextBegin));
	const size_t End = NextBegin - HostLines::LengthOf(Line.End);
	if (Feed == NotSearched || Feed > End)
	{
		Feed = HostLines::FindBehindLast(Text, '\n', 0, End); // behind it, here
	}
	LineBegin = HostLines::FindBehindLast(Text, '\r', Feed, End);
	Line.Text = Text.substr(LineBegin, End - LineBegin);
	return true;
}
