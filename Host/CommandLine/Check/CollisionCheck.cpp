// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionCheck.h"

#include "Check/CollisionLines.h"
#include "Check/LineDifference.h"
#include "Check/ToolkitVerdict.h"
#include "EditorHost.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostNotifications.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"

#include <string>
#include <utility>
#include <vector>

namespace CollisionCheck
{
	namespace
	{
		/** Starts an editor on the project, which checks; lets Act see it, and adds to the report what it said and what went wrong. */
		template<typename ActionType>
		EToolkitVerdict RunEditor(FCheckReport& Report, bool bWriteOverlay, ActionType Act)
		{
			FEditorHostOptions Options;
			Options.Project = Report.Project;
			Options.bWriteOverlay = bWriteOverlay;
			const FEditorHost Editor(Options);
			const EToolkitVerdict Verdict = ToolkitVerdict::Read();
			Act(Verdict);
			Report.Messages.Append(ToolkitVerdict::GetMessages());
			Report.Problems.Append(HostProblems::GetAll());
			return Verdict;
		}

		/** Files as the editor behind the overlay saw them last. */
		using FPendingTexts = std::vector<std::pair<HostFiles::FPendingWrite, std::string>>;

		FPendingTexts ReadPending()
		{
			FPendingTexts Texts;
			for (const HostFiles::FPendingWrite& Write : HostFiles::GetPendingWrites())
			{
				std::string Text;
				HostTextFiles::ReadUtf8(Write.Path, Text);
				Texts.emplace_back(Write, Text);
			}
			return Texts;
		}

		/** Compares with the disk: to be called without an overlay. */
		void AddPending(FCheckReport& Report, const FPendingTexts& Texts)
		{
			for (const auto& [Write, Text] : Texts)
			{
				std::string OnDisk;
				HostTextFiles::ReadUtf8(Write.Path, OnDisk);
				Report.PendingWrites.Add(FFileChange{Write.Path, Write.bDeleted, LineDifference::GetAdded(OnDisk, Text)});
			}
		}

		/** Presses what a person would press, up to the restart. @return whether the editor wants to restart. */
		bool PressRepairButtons()
		{
			return HostNotifications::PressButton(TEXT("Add to Project Config")).bDone &&
				HostNotifications::PressButton(TEXT("Restart Editor")).bDone && !HostEditor::GetRestartRequests().IsEmpty();
		}

		ECheckStatus Judge(const FCheckReport& Report, EToolkitVerdict Verdict, ECheckStatus WhenSound, ECheckStatus WhenMissing)
		{
			if (!Report.Problems.IsEmpty() || Verdict == EToolkitVerdict::None)
			{
				return ECheckStatus::Trouble;
			}
			return Verdict == EToolkitVerdict::Sound ? WhenSound : WhenMissing;
		}

		void AddWritten(FCheckReport& Report, const TArray<FString>& Files, const FString& IniFile, const std::string& IniBefore)
		{
			for (const FString& File : Files)
			{
				if (Report.WrittenFiles.ContainsByPredicate([&File](const FFileChange& Change) { return Change.Path.Equals(File); }))
				{
					continue;
				}
				FFileChange Change;
				Change.Path = File;
				std::string After;
				if (FPaths::GetCleanFilename(File) == FPaths::GetCleanFilename(IniFile) && HostTextFiles::ReadUtf8(File, After) == HostFiles::ERead::Done)
				{
					Change.AddedLines = LineDifference::GetAdded(IniBefore, After);
				}
				Report.WrittenFiles.Add(Change);
			}
		}
	}

	FCheckReport Look(const FString& Project)
	{
		FCheckReport Report;
		Report.Project = Project;
		FPendingTexts Pending;
		const EToolkitVerdict Verdict = RunEditor(Report, true, [&Pending](EToolkitVerdict) { Pending = ReadPending(); });
		AddPending(Report, Pending);
		Report.Status = Judge(Report, Verdict, ECheckStatus::Sound, ECheckStatus::Missing);
		return Report;
	}

	FCheckReport Repair(const FString& Project)
	{
		FCheckReport Report;
		Report.Project = Project;
		const FString IniFile = FPaths::Combine(FPaths::GetPath(Project), FString(TEXT("Config/DefaultEngine.ini")));
		if (!HostFiles::CheckWritable(IniFile) || !HostTextFiles::CheckReadable(IniFile))
		{
			Report.Problems = HostProblems::GetAll();
			return Report;
		}
		const HostFiles::FLock Lock(IniFile); // until the second check is done
		std::string IniBefore;
		HostTextFiles::ReadUtf8(IniFile, IniBefore);

		TArray<FString> Written;
		bool bRestart = false;
		EToolkitVerdict Verdict = RunEditor(Report, false, [&](EToolkitVerdict First) {
			bRestart = First == EToolkitVerdict::Missing && HostProblems::GetAll().IsEmpty() && PressRepairButtons();
			Written = HostFiles::GetWrittenFiles();
		});
		if (bRestart)
		{
			Verdict = RunEditor(Report, false, [&Written](EToolkitVerdict) { Written.Append(HostFiles::GetWrittenFiles()); });
		}
		AddWritten(Report, Written, IniFile, IniBefore);
		Report.Status = Judge(Report, Verdict, bRestart ? ECheckStatus::Repaired : ECheckStatus::Sound, ECheckStatus::StillMissing);
		if (Report.Status == ECheckStatus::StillMissing)
		{
			Report.LinesToAdd = CollisionLines::Make(FPaths::GetPath(Project));
		}
		return Report;
	}
}
