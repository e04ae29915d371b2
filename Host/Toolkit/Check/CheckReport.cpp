// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckReport.h"

#include "Console.h"
#include "JsonText.h"

namespace CheckReport
{
	struct FStatusText
	{
		ECheckStatus Status;
		EExitStatus ExitStatus;
		const char* Word;
		const TCHAR* Sentence;
	};

	const FStatusText Statuses[] = {
		{ECheckStatus::Sound, EExitStatus::Done, "sound", TEXT("Sound: the UnitVolume channel and profile are there.")},
		{ECheckStatus::Repaired, EExitStatus::Done, "repaired", TEXT("Repaired: the UnitVolume channel and profile were missing and have been added.")},
		{ECheckStatus::Missing, EExitStatus::Failed, "missing", TEXT("Missing: the UnitVolume channel or profile is not there.")},
		{ECheckStatus::StillMissing, EExitStatus::Failed, "stillMissing", TEXT("Still missing, nothing was written. The repair would not help: ")},
		{ECheckStatus::Undone, EExitStatus::Done, "undone", TEXT("Undone: what the last repair added is gone again.")},
		{ECheckStatus::NotUndone, EExitStatus::Failed, "notUndone", TEXT("Not undone, nothing was changed: ")},
		{ECheckStatus::Trouble, EExitStatus::Trouble, "trouble", TEXT("No verdict.")},
	};

	const FStatusText& Find(ECheckStatus Status)
	{
		return Statuses[static_cast<int32>(Status)];
	}

	void PrintLines(const TCHAR* Indent, const TArray<FString>& Lines)
	{
		for (const FString& Line : Lines)
		{
			Console::Print(Indent + Line);
		}
	}

	/** Whose lines they are is said where the engine's are among them. */
	void PrintAdded(const FFileChange& Change)
	{
		if (Change.EngineLines.IsEmpty())
		{
			PrintLines(TEXT("  "), Change.AddedLines);
			return;
		}
		Console::Print(TEXT("  the engine's current profiles:"));
		PrintLines(TEXT("    "), Change.EngineLines);
		if (!Change.ToolkitLines.IsEmpty())
		{
			Console::Print(TEXT("  the toolkit's lines:"));
			PrintLines(TEXT("    "), Change.ToolkitLines);
		}
	}

	void PrintFiles(const TCHAR* Title, const TArray<FFileChange>& Changes, EChanges Shown)
	{
		for (const FFileChange& Change : Changes)
		{
			Console::Print(FString::Printf(TEXT("%s %s%s"), Title, *Change.Path, Change.bDeleted ? TEXT(" (deleted)") : TEXT("")));
			if (Shown == EChanges::Lines)
			{
				PrintAdded(Change);
				PrintLines(TEXT("  taken out: "), Change.RemovedLines);
			}
		}
	}

	/** Empty for a project that has a collision section. */
	FString DescribeEngineLines(const TArray<FFileChange>& Changes)
	{
		int32 Number = 0;
		for (const FFileChange& Change : Changes)
		{
			for (const FString& Line : Change.EngineLines)
			{
				Number += Line.IsEmpty() ? 0 : 1; // less the blank one before the section
			}
		}
		return Number == 0 ? FString() : FString::Printf(TEXT(" With them come the engine's current profiles (%d lines), which a project without a collision section gets first."), Number);
	}

	FString DescribeRepair(const FCheckReport& Report)
	{
		if (!Report.Reason.IsEmpty())
		{
			return TEXT(" --repair cannot help: ") + Report.Reason + TEXT(".");
		}
		if (!Report.Problems.IsEmpty())
		{
			return TEXT(" --repair cannot add them until what the error output tells is put right.");
		}
		return TEXT(" --repair adds them.") + DescribeEngineLines(Report.RepairWrites);
	}

	/** What is the matter, in a sentence or two. */
	FString MakeVerdict(const FCheckReport& Report)
	{
		const FString Verdict = Find(Report.Status).Sentence;
		const TCHAR* const But = Report.SpoiledBy.IsEmpty() ? TEXT("") : TEXT(" But remove the line above: the toolkit looks for the channel in DefaultEngine.ini only.");
		switch (Report.Status)
		{
			case ECheckStatus::Sound:
				return Verdict + But;
			case ECheckStatus::Repaired:
				return Verdict + DescribeEngineLines(Report.WrittenFiles) + But;
			case ECheckStatus::Missing:
				return Verdict + DescribeRepair(Report);
			case ECheckStatus::StillMissing:
			case ECheckStatus::NotUndone:
				return Verdict + Report.Reason + TEXT(".");
			case ECheckStatus::Undone:
			case ECheckStatus::Trouble:
				return Verdict;
		}
		checkNoEntry();
		return Verdict;
	}

	FJson MakeJson(const TArray<FFileChange>& Changes)
	{
		FJson Array = FJson::array();
		for (const FFileChange& Change : Changes)
		{
			Array.push_back({{"path", JsonText::Make(Change.Path)}, {"deleted", Change.bDeleted}, {"addedLines", JsonText::Make(Change.AddedLines)}, {"removedLines", JsonText::Make(Change.RemovedLines)}, {"engineLines", JsonText::Make(Change.EngineLines)}, {"toolkitLines", JsonText::Make(Change.ToolkitLines)}});
		}
		return Array;
	}

	FJson MakeJson(const TArray<FSpoiler>& Spoilers)
	{
		FJson Array = FJson::array();
		for (const FSpoiler& Spoiler : Spoilers)
		{
			Array.push_back({{"what", JsonText::Make(Spoiler.What)}, {"file", JsonText::Make(Spoiler.File)}, {"line", Spoiler.Line}, {"text", JsonText::Make(Spoiler.Text)}});
		}
		return Array;
	}

	EExitStatus GetExitStatus(ECheckStatus Status)
	{
		return Find(Status).ExitStatus;
	}

	void PrintText(const FCheckReport& Report, EChanges Changes)
	{
		Console::Print(Report.Project, ETextStyle::Heading);
		for (const FString& Message : Report.Messages)
		{
			Console::Print(TEXT("  ") + Message.Replace(TEXT("\n"), TEXT(" "))); // a line each
		}
		PrintFiles(TEXT("Would have written"), Report.PendingWrites, Changes);
		PrintFiles(TEXT("Written"), Report.WrittenFiles, Changes);
		if (Changes == EChanges::Difference)
		{
			Console::PrintDifference(Report.Difference);
		}
		for (const FSpoiler& Spoiler : Report.SpoiledBy)
		{
			Console::Print(FString::Printf(TEXT("%s(%d): takes the UnitVolume %s away: %s"), *Spoiler.File, Spoiler.Line, *Spoiler.What, *Spoiler.Text), ETextStyle::Warning);
		}
		Console::Print(MakeVerdict(Report), GetExitStatus(Report.Status) == EExitStatus::Done ? ETextStyle::Good : ETextStyle::Bad);
		if (!Report.LinesToAdd.IsEmpty())
		{
			Console::Print(TEXT("Add to the section [/Script/Engine.CollisionProfile] of Config/DefaultEngine.ini by hand:"));
			PrintLines(TEXT(""), Report.LinesToAdd);
		}
	}

	void PrintJson(const FCheckReport& Report)
	{
		const FStatusText& Status = Find(Report.Status);
		const FJson Json = {
			{"status", static_cast<int>(Status.ExitStatus)},
			{"verdict", Status.Word},
			{"project", JsonText::Make(Report.Project)},
			{"messages", JsonText::Make(Report.Messages)},
			{"spoiledBy", MakeJson(Report.SpoiledBy)},
			{"pendingWrites", MakeJson(Report.PendingWrites)},
			{"repairWrites", MakeJson(Report.RepairWrites)},
			{"writtenFiles", MakeJson(Report.WrittenFiles)},
			{"diff", Report.Difference},
			{"problems", JsonText::Make(Report.Problems)},
			{"linesToAdd", JsonText::Make(Report.LinesToAdd)},
			{"reason", JsonText::Make(Report.Reason)},
		};
		Console::PrintExact(JsonText::Print(Json, 2));
	}
}
