// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckReport.h"

#include "Console.h"
#include "JsonText.h"

namespace CheckReport
{
	namespace
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
			{ECheckStatus::Missing, EExitStatus::Failed, "missing", TEXT("Missing: the UnitVolume channel or profile is not there. --repair adds them.")},
			{ECheckStatus::StillMissing, EExitStatus::Failed, "stillMissing", TEXT("Still missing: the repair did not help.")},
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

		void PrintFiles(const TCHAR* Title, const TArray<FFileChange>& Changes, EChanges Shown)
		{
			for (const FFileChange& Change : Changes)
			{
				Console::Print(FString::Printf(TEXT("%s %s%s"), Title, *Change.Path, Change.bDeleted ? TEXT(" (deleted)") : TEXT("")));
				if (Shown == EChanges::Lines)
				{
					PrintLines(TEXT("  "), Change.AddedLines);
					PrintLines(TEXT("  taken out: "), Change.RemovedLines);
				}
			}
		}

		/** What is the matter, in one sentence. */
		FString MakeVerdict(const FCheckReport& Report)
		{
			const bool bMissing = Report.Status == ECheckStatus::Missing || Report.Status == ECheckStatus::StillMissing;
			if (bMissing && Report.SpoiledBy.ContainsByPredicate([](const FSpoiler& Spoiler) { return Spoiler.What == SpoiledSetup::Profile; }))
			{
				return TEXT("Missing: the configuration brings the UnitVolume profile and takes it away again. Remove the line above; --repair cannot help.");
			}
			FString Verdict = Find(Report.Status).Sentence;
			const bool bFine = Report.Status == ECheckStatus::Sound || Report.Status == ECheckStatus::Repaired;
			if (bFine && !Report.SpoiledBy.IsEmpty())
			{
				Verdict += TEXT(" But remove the line above: the toolkit looks for the channel in DefaultEngine.ini only.");
			}
			return Report.Status == ECheckStatus::NotUndone ? Verdict + Report.Reason + TEXT(".") : Verdict;
		}

		FJson MakeJson(const TArray<FFileChange>& Changes)
		{
			FJson Array = FJson::array();
			for (const FFileChange& Change : Changes)
			{
				Array.push_back({{"path", JsonText::Make(Change.Path)}, {"deleted", Change.bDeleted}, {"addedLines", JsonText::Make(Change.AddedLines)}, {"removedLines", JsonText::Make(Change.RemovedLines)}});
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
	}

	EExitStatus GetExitStatus(ECheckStatus Status)
	{
		return Find(Status).ExitStatus;
	}

	void PrintText(const FCheckReport& Report, EChanges Changes)
	{
		Console::Print(Report.Project);
		for (const FString& Message : Report.Messages)
		{
			Console::Print(TEXT("  ") + Message.Replace(TEXT("\n"), TEXT(" "))); // a line each
		}
		PrintFiles(TEXT("Would have written"), Report.PendingWrites, Changes);
		PrintFiles(TEXT("Written"), Report.WrittenFiles, Changes);
		if (Changes == EChanges::Difference && !Report.Difference.empty())
		{
			Console::PrintUtf8(std::string_view(Report.Difference).substr(0, Report.Difference.size() - 1)); // less its last line end
		}
		for (const FSpoiler& Spoiler : Report.SpoiledBy)
		{
			Console::Print(FString::Printf(TEXT("%s(%d): takes the UnitVolume %s away: %s"), *Spoiler.File, Spoiler.Line, *Spoiler.What, *Spoiler.Text));
		}
		Console::Print(MakeVerdict(Report));
		if (!Report.LinesToAdd.IsEmpty())
		{
			Console::Print(TEXT("Add these lines to the section [/Script/Engine.CollisionProfile] of Config/DefaultEngine.ini by hand:"));
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
			{"writtenFiles", MakeJson(Report.WrittenFiles)},
			{"diff", Report.Difference},
			{"problems", JsonText::Make(Report.Problems)},
			{"linesToAdd", JsonText::Make(Report.LinesToAdd)},
			{"reason", JsonText::Make(Report.Reason)},
		};
		Console::PrintUtf8(JsonText::Print(Json, 2));
	}
}
