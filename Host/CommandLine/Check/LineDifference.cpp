// Copyright Velmorant. All Rights Reserved.

#include "Check/LineDifference.h"

#include "Containers/StringConv.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace LineDifference
{
	namespace
	{
		/** Takes the next line off the front of Text. */
		std::string_view TakeLine(std::string_view& Text)
		{
			const size_t End = std::min(Text.find('\n'), Text.size());
			std::string_view Line = Text.substr(0, End);
			Text.remove_prefix(std::min(End + 1, Text.size()));
			if (Line.ends_with('\r'))
			{
				Line.remove_suffix(1);
			}
			return Line;
		}
	}

	TArray<FString> GetAdded(std::string_view Old, std::string_view New)
	{
		std::unordered_map<std::string_view, int32> Unmatched;
		while (!Old.empty())
		{
			++Unmatched[TakeLine(Old)];
		}
		TArray<FString> Added;
		while (!New.empty())
		{
			const std::string_view Line = TakeLine(New);
			const auto Found = Unmatched.find(Line);
			if (Found != Unmatched.end() && Found->second > 0)
			{
				--Found->second;
			}
			else
			{
				Added.Add(FString(UTF8_TO_TCHAR(std::string(Line).c_str())));
			}
		}
		return Added;
	}
}
