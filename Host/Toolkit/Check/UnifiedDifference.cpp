// Copyright Velmorant. All Rights Reserved.

#include "Check/UnifiedDifference.h"

#include "LineDifference.h"

#include <algorithm>
#include <vector>

namespace UnifiedDifference
{
	using LineDifference::FEdit;
	using LineDifference::FLines;

	constexpr size_t Context = 3; // lines before and behind a change

	/** With their line feeds: a last line that gets one is another line. */
	FLines SplitWithEnds(std::string_view Text)
	{
		FLines Lines;
		while (!Text.empty())
		{
			const size_t End = Text.find('\n');
			const size_t Length = End == std::string_view::npos ? Text.size() : End + 1;
			Lines.push_back(Text.substr(0, Length));
			Text.remove_prefix(Length);
		}
		return Lines;
	}

	/** "12,3", the first line and their number; a range without lines stands behind the line before it. */
	std::string DescribeRange(size_t Begin, size_t End)
	{
		const size_t Number = End - Begin;
		const std::string First = std::to_string(Number == 0 ? Begin : Begin + 1);
		return Number == 1 ? First : First + "," + std::to_string(Number);
	}

	void AddLines(char Sign, const FLines& Lines, size_t Begin, size_t End, std::string& Out)
	{
		for (size_t Index = Begin; Index < End; ++Index)
		{
			Out += Sign;
			Out += Lines[Index];
			Out += Lines[Index].ends_with('\n') ? "" : "\n\\ No newline at end of file\n";
		}
	}

	/** Edits [First, Last] and the lines around them. @param NumAbove lines of the file above Old and New */
	void AddHunk(const FLines& Old, const FLines& New, size_t NumAbove, const FEdit* First, const FEdit* Last, std::string& Out)
	{
		const size_t Before = std::min(Context, First->OldBegin);
		const size_t Behind = std::min(Context, Old.size() - Last->OldEnd);
		Out += "@@ -" + DescribeRange(NumAbove + First->OldBegin - Before, NumAbove + Last->OldEnd + Behind) + " +" + DescribeRange(NumAbove + First->NewBegin - Before, NumAbove + Last->NewEnd + Behind) + " @@\n";
		size_t At = First->OldBegin - Before;
		for (const FEdit* Edit = First; Edit <= Last; ++Edit)
		{
			AddLines(' ', Old, At, Edit->OldBegin, Out);
			AddLines('-', Old, Edit->OldBegin, Edit->OldEnd, Out);
			AddLines('+', New, Edit->NewBegin, Edit->NewEnd, Out);
			At = Edit->OldEnd;
		}
		AddLines(' ', Old, At, At + Behind, Out);
	}

	std::string Make(const std::string& Name, std::optional<std::string_view> Old, std::optional<std::string_view> New)
	{
		std::string_view OldText = Old.value_or(std::string_view());
		std::string_view NewText = New.value_or(std::string_view());
		const std::string_view Above = LineDifference::DropCommonEnds(OldText, NewText, Context);
		const size_t NumAbove = static_cast<size_t>(std::count(Above.begin(), Above.end(), '\n'));
		const FLines OldLines = SplitWithEnds(OldText);
		const FLines NewLines = SplitWithEnds(NewText);
		const std::vector<FEdit> Edits = LineDifference::FindEdits(OldLines, NewLines);
		std::string Out;
		for (size_t First = 0; First < Edits.size();)
		{
			size_t Last = First;
			while (Last + 1 < Edits.size() && Edits[Last + 1].OldBegin - Edits[Last].OldEnd <= 2 * Context)
			{
				++Last;
			}
			AddHunk(OldLines, NewLines, NumAbove, &Edits[First], &Edits[Last], Out);
			First = Last + 1;
		}
		const std::string Missing = "/dev/null";
		return Out.empty() ? Out : "--- " + (Old.has_value() ? Name : Missing) + "\n+++ " + (New.has_value() ? Name : Missing) + "\n" + Out;
	}
}
