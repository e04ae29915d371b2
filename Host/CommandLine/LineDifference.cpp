// Copyright Velmorant. All Rights Reserved.

#include "LineDifference.h"

#include "Containers/StringConv.h"
#include "HostLines.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <unordered_map>

namespace LineDifference
{
	/** Lines [Begin, End) of the longer text that stand before line At of the shorter one. */
	struct FRun
	{
		size_t At = 0;
		size_t Begin = 0;
		size_t End = 0;
	};

	/** What has to go from Long so that Short remains. @return false when that is not all there is between them. */
	bool FindRuns(const FLines& Short, size_t ShortEnd, const FLines& Long, size_t LongEnd, size_t Begin, std::vector<FRun>& OutRuns)
	{
		size_t At = Begin;
		for (size_t Index = Begin; Index < LongEnd; ++Index)
		{
			if (At < ShortEnd && Short[At] == Long[Index])
			{
				++At;
			}
			else if (!OutRuns.empty() && OutRuns.back().End == Index)
			{
				++OutRuns.back().End;
			}
			else
			{
				OutRuns.push_back(FRun{At, Index, Index + 1});
			}
		}
		return At == ShortEnd;
	}

	constexpr size_t MaxPairs = 4'000'000; // of lines to be compared with each other

	/** Both ways, with as many lines as possible in common: the longest common subsequence, from the end. */
	std::vector<FEdit> FindFewestEdits(const FLines& Old, const FLines& New, const FEdit& Range)
	{
		const size_t NumOld = Range.OldEnd - Range.OldBegin;
		const size_t NumNew = Range.NewEnd - Range.NewBegin;
		const size_t Width = NumNew + 1;
		std::vector<uint32> Common((NumOld + 1) * Width, 0); // lines in common from here on
		const auto IsSame = [&](size_t OldIndex, size_t NewIndex) { return Old[Range.OldBegin + OldIndex] == New[Range.NewBegin + NewIndex]; };
		for (size_t OldIndex = NumOld; OldIndex-- > 0;)
		{
			for (size_t NewIndex = NumNew; NewIndex-- > 0;)
			{
				const size_t At = OldIndex * Width + NewIndex;
				Common[At] = IsSame(OldIndex, NewIndex) ? Common[At + Width + 1] + 1 : std::max(Common[At + Width], Common[At + 1]);
			}
		}
		std::vector<FEdit> Edits;
		size_t OldIndex = 0;
		size_t NewIndex = 0;
		while (OldIndex < NumOld || NewIndex < NumNew)
		{
			if (OldIndex < NumOld && NewIndex < NumNew && IsSame(OldIndex, NewIndex))
			{
				++OldIndex;
				++NewIndex;
				continue;
			}
			const size_t OldAt = Range.OldBegin + OldIndex;
			const size_t NewAt = Range.NewBegin + NewIndex;
			if (Edits.empty() || Edits.back().OldEnd != OldAt || Edits.back().NewEnd != NewAt)
			{
				Edits.push_back(FEdit{OldAt, OldAt, NewAt, NewAt});
			}
			const size_t At = OldIndex * Width + NewIndex;
			const bool bOld = OldIndex < NumOld && (NewIndex == NumNew || Common[At + Width] >= Common[At + 1]);
			(bOld ? OldIndex : NewIndex) += 1;
			(bOld ? Edits.back().OldEnd : Edits.back().NewEnd) += 1;
		}
		return Edits;
	}

	FLines Split(std::string_view Text)
	{
		FLines Lines;
		for (FTextLines Walk(Text); Walk.Advance();)
		{
			Lines.push_back(Walk.Get());
		}
		return Lines;
	}

	constexpr size_t BlockSize = 4096; // bytes compared in one go

	/** How many bytes both begin with. */
	size_t CountCommonFront(std::string_view Old, std::string_view New)
	{
		const size_t Shorter = std::min(Old.size(), New.size());
		size_t Count = 0;
		while (Count + BlockSize <= Shorter && std::memcmp(Old.data() + Count, New.data() + Count, BlockSize) == 0)
		{
			Count += BlockSize;
		}
		while (Count < Shorter && Old[Count] == New[Count])
		{
			++Count;
		}
		return Count;
	}

	/** How many bytes both end with. */
	size_t CountCommonBack(std::string_view Old, std::string_view New)
	{
		const size_t Shorter = std::min(Old.size(), New.size());
		const auto FromEnd = [](std::string_view Text, size_t Count) { return Text.data() + (Text.size() - Count); };
		size_t Count = 0;
		while (Count + BlockSize <= Shorter && std::memcmp(FromEnd(Old, Count + BlockSize), FromEnd(New, Count + BlockSize), BlockSize) == 0)
		{
			Count += BlockSize;
		}
		while (Count < Shorter && *FromEnd(Old, Count + 1) == *FromEnd(New, Count + 1))
		{
			++Count;
		}
		return Count;
	}

	/** Where the line begins that the character before At ends or stands in. */
	size_t FindLineBegin(std::string_view Text, size_t At)
	{
		const size_t Feed = At > 0 ? Text.rfind('\n', At - 1) : std::string_view::npos;
		return Feed == std::string_view::npos ? 0 : Feed + 1;
	}

	std::string_view DropCommonEnds(std::string_view& Old, std::string_view& New, size_t Context)
	{
		size_t Front = FindLineBegin(Old, CountCommonFront(Old, New));
		for (size_t Line = 0; Line < Context && Front > 0; ++Line)
		{
			Front = FindLineBegin(Old, Front - 1);
		}
		const std::string_view Dropped = Old.substr(0, Front);
		Old.remove_prefix(Front);
		New.remove_prefix(Front);
		size_t Back = CountCommonBack(Old, New);
		for (size_t Line = 0; Line <= Context && Back > 0; ++Line) // what is common may begin within a line: one more
		{
			const size_t Feed = Old.find('\n', Old.size() - Back);
			Back = Feed == std::string_view::npos ? 0 : Old.size() - Feed - 1;
		}
		Old.remove_suffix(Back);
		New.remove_suffix(Back);
		return Dropped;
	}

	std::vector<FEdit> FindEdits(const FLines& Old, const FLines& New)
	{
		const size_t Shorter = std::min(Old.size(), New.size());
		size_t Front = 0;
		while (Front < Shorter && Old[Front] == New[Front])
		{
			++Front;
		}
		size_t Back = 0;
		while (Back < Shorter - Front && Old[Old.size() - 1 - Back] == New[New.size() - 1 - Back])
		{
			++Back;
		}
		const size_t OldEnd = Old.size() - Back;
		const size_t NewEnd = New.size() - Back;
		const bool bAdded = NewEnd >= OldEnd;
		std::vector<FRun> Runs;
		const bool bOneWay = bAdded ? FindRuns(Old, OldEnd, New, NewEnd, Front, Runs) : FindRuns(New, NewEnd, Old, OldEnd, Front, Runs);
		if (!bOneWay)
		{
			const FEdit All{Front, OldEnd, Front, NewEnd};
			const bool bQuick = (OldEnd - Front) * (NewEnd - Front) <= MaxPairs;
			return bQuick ? FindFewestEdits(Old, New, All) : std::vector<FEdit>{All};
		}
		std::vector<FEdit> Edits;
		for (const FRun& Run : Runs)
		{
			Edits.push_back(bAdded ? FEdit{Run.At, Run.At, Run.Begin, Run.End} : FEdit{Run.Begin, Run.End, Run.At, Run.At});
		}
		return Edits;
	}

	TArray<FString> GetAdded(std::string_view Old, std::string_view New)
	{
		std::unordered_map<std::string_view, int32> Unmatched;
		for (const std::string_view Line : Split(Old))
		{
			++Unmatched[Line];
		}
		TArray<FString> Added;
		for (const std::string_view Line : Split(New))
		{
			const auto Found = Unmatched.find(Line);
			if (Found != Unmatched.end() && Found->second > 0)
			{
				--Found->second;
			}
			else
			{
				Added.Add(ToString(Line));
			}
		}
		return Added;
	}

	FString ToString(std::string_view Line)
	{
		return FString(UTF8_TO_TCHAR(std::string(Line).c_str()));
	}
}
