// Copyright Velmorant. All Rights Reserved.

#include "Check/RepairObstacle.h"

#include "Check/CollisionLines.h"
#include "LineDifference.h"
#include "Misc/Paths.h"

#include <string_view>
#include <vector>

namespace RepairObstacle
{
	using LineDifference::FEdit;
	using LineDifference::FLines;

	const TCHAR* const Section = TEXT("/Script/Engine.CollisionProfile");

	/** @return whether the line is a section's header. */
	bool ReadHeader(std::string_view Line, FString& OutSection)
	{
		const FString Text = LineDifference::ToString(Line).TrimStartAndEnd();
		const bool bHeader = Text.StartsWith(TEXT("[")) && Text.EndsWith(TEXT("]"));
		OutSection = bHeader ? Text.Mid(1, Text.Len() - 2) : OutSection;
		return bHeader;
	}

	/** The section that a line stands in; empty before the first one. */
	FString FindSection(const FLines& Lines, size_t Index)
	{
		FString Name;
		while (Index > 0 && !ReadHeader(Lines[Index - 1], Name))
		{
			--Index;
		}
		return Name;
	}

	/** As the toolkit compares them, letter case does not count. */
	bool IsInSection(const FLines& Lines, const FString& Wanted)
	{
		FString Current;
		for (const std::string_view Line : Lines)
		{
			if (!ReadHeader(Line, Current) && Current.Equals(Section, ESearchCase::IgnoreCase) && LineDifference::ToString(Line).TrimStartAndEnd().Equals(Wanted, ESearchCase::IgnoreCase))
			{
				return true;
			}
		}
		return false;
	}

	TArray<FString> FindLinesToAdd(const FCheckRun& Run, const FFileText& IniFile)
	{
		const FLines Lines = LineDifference::Split(IniFile.Text.Get());
		TArray<FString> Missing;
		for (const FString& Line : CollisionLines::Make(FPaths::GetPath(FPaths::GetPath(IniFile.Path))))
		{
			const bool bOtherForm = Run.bHadProfile && Line.StartsWith(TEXT("+Profiles="));
			if (!bOtherForm && !IsInSection(Lines, Line))
			{
				Missing.Add(Line);
			}
		}
		return Missing;
	}

	/** Where the repair put its lines decides. */
	FString DescribePlace(const FCheckRun& Run, const FFileText& IniFile)
	{
		const FFileText& Checked = FileChanges::Find(Run.CheckFiles, IniFile);
		const FFileText& Repaired = FileChanges::Find(Run.Files, IniFile);
		const FLines Lines = LineDifference::Split(Repaired.Text.Get());
		const std::vector<FEdit> Edits = LineDifference::FindEdits(LineDifference::Split(Checked.Text.Get()), Lines);
		const FString Rule = TEXT("the toolkit adds its lines behind the last line that begins with +Profiles=");
		if (Edits.empty())
		{
			return Rule + TEXT(", and Config/DefaultEngine.ini has none");
		}
		const FString Found = FindSection(Lines, Edits[0].NewBegin);
		if (Found.Equals(Section, ESearchCase::IgnoreCase))
		{
			return TEXT("the lines that the toolkit adds have no effect where it adds them");
		}
		const FString Place = FString::Printf(TEXT("%s(%d)"), *IniFile.Path, static_cast<int32>(Edits[0].OldBegin));
		return Rule + TEXT(", which is ") + Place + (Found.IsEmpty() ? FString(TEXT(", in no section")) : FString::Printf(TEXT(", in another section, [%s]"), *Found));
	}

	void Explain(const FCheckRun& Run, const FFileText& IniFile, FCheckReport& Report)
	{
		const FSpoiler* Spoiler = Report.SpoiledBy.FindByPredicate([](const FSpoiler& Each) { return Each.What == SpoiledSetup::Profile; });
		if (Spoiler != nullptr)
		{
			Report.Reason = FString::Printf(TEXT("line %d of %s has to go first"), Spoiler->Line, *Spoiler->File);
		}
		else if (!Run.bRepaired)
		{
			Report.Reason = TEXT("the toolkit did not offer it");
		}
		else
		{
			Report.Reason = DescribePlace(Run, IniFile);
			Report.LinesToAdd = FindLinesToAdd(Run, IniFile);
		}
	}

	TArray<FSpoiler> NumberAsOnDisk(const TArray<FSpoiler>& Spoilers, const FFileText& OnDisk, const FFileText& InOverlay)
	{
		if (Spoilers.IsEmpty())
		{
			return Spoilers;
		}
		std::string_view Old = OnDisk.Text.Get();
		std::string_view New = InOverlay.Text.Get();
		const size_t NumAbove = LineDifference::Split(LineDifference::DropCommonEnds(Old, New)).size();
		const std::vector<FEdit> Edits = LineDifference::FindEdits(LineDifference::Split(Old), LineDifference::Split(New));
		TArray<FSpoiler> Numbered = Spoilers;
		for (FSpoiler& Spoiler : Numbered)
		{
			const bool bSameFile = HostFiles::Resolve(Spoiler.File).Equals(InOverlay.Path);
			const size_t Line = static_cast<size_t>(Spoiler.Line); // in the overlay
			for (const FEdit& Edit : Edits)
			{
				if (bSameFile && NumAbove + Edit.NewEnd < Line)
				{
					Spoiler.Line -= static_cast<int32>(Edit.NewEnd - Edit.NewBegin) - static_cast<int32>(Edit.OldEnd - Edit.OldBegin);
				}
			}
		}
		return Numbered;
	}
}
