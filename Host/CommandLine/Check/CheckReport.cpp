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
			{ECheckStatus::Trouble, EExitStatus::Trouble, "trouble", TEXT("No verdict.")},
		};

		const FStatusText& Find(ECheckStatus Status)
		{
			return Statuses[static_cast<int32>(Status)];
		}

		void PrintChanges(const TCHAR* Title, const TArray<FFileChange>& Changes)
		{
			for (const FFileChange& Change : Changes)
			{
				Console::Print(FString::Printf(TEXT("%s %s%s"), Title, *Change.Path, Change.bDeleted ? TEXT(" (deleted)") : TEXT("")));
				for (const FString& Line : Change.AddedLines)
				{
					Console::Print(TEXT("  ") + Line);
				}
			}
		}

		FJson MakeJson(const TArray<FFileChange>& Changes)
		{
			FJson Array = FJson::array();
			for (const FFileChange& Change : Changes)
			{
				Array.push_back({{"path", JsonText::Make(Change.Path)}, {"deleted", Change.bDeleted}, {"addedLines", JsonText::Make(Change.AddedLines)}});
			}
			return Array;
		}
	}

	EExitStatus GetExitStatus(ECheckStatus Status)
	{
		return Find(Status).ExitStatus;
	}

	void PrintText(const FCheckReport& Report)
	{
		Console::Print(Report.Project);
		for (const FString& Message : Report.Messages)
		{
			Console::Print(TEXT("  ") + Message);
		}
		PrintChanges(TEXT("Would have written"), Report.PendingWrites);
		PrintChanges(TEXT("Written"), Report.WrittenFiles);
		Console::Print(Find(Report.Status).Sentence);
		if (!Report.LinesToAdd.IsEmpty())
		{
			Console::Print(TEXT("Add these lines to the section [/Script/Engine.CollisionProfile] of Config/DefaultEngine.ini by hand:"));
			for (const FString& Line : Report.LinesToAdd)
			{
				Console::Print(Line);
			}
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
			{"pendingWrites", MakeJson(Report.PendingWrites)},
			{"writtenFiles", MakeJson(Report.WrittenFiles)},
			{"problems", JsonText::Make(Report.Problems)},
			{"linesToAdd", JsonText::Make(Report.LinesToAdd)},
		};
		Console::PrintUtf8(JsonText::Print(Json, 2));
	}
}
