// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionCheck.h"

#include "Check/CollisionLines.h"
#include "Check/RepairRecord.h"
#include "Check/ToolkitVerdict.h"
#include "EditorHost.h"
#include "HostEditor.h"
#include "HostFiles.h"
#include "HostNotifications.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"

#include <string>

namespace CollisionCheck
{
	namespace
	{
		const TCHAR* const AddButton = TEXT("Add to Project Config");
		const TCHAR* const RestartButton = TEXT("Restart Editor");

		enum class EWrites
		{
			OnDisk,
			InOverlay
		};

		/** Starts an editor on the project, which checks; lets Act see it, and adds to the report what it said and what went wrong. */
		template<typename ActionType>
		EToolkitVerdict RunEditor(FCheckReport& Report, const FEditorArguments& Arguments, EWrites Writes, ActionType Act)
		{
			FEditorHostOptions Options = EditorArguments::MakeOptions(Report.Project, Arguments);
			Options.bWriteOverlay = Writes == EWrites::InOverlay;
			const FEditorHost Editor(Options);
			const EToolkitVerdict Verdict = ToolkitVerdict::Read();
			Act(Verdict);
			Report.Messages.Append(ToolkitVerdict::GetMessages());
			Report.SpoiledBy = SpoiledSetup::Find();
			Report.Problems.Append(HostProblems::GetAll());
			return Verdict;
		}

		/** Files as the editor behind the overlay saw them last. */
		TArray<FFileText> ReadPending()
		{
			TArray<FFileText> Texts;
			for (const HostFiles::FPendingWrite& Write : HostFiles::GetPendingWrites())
			{
				Texts.Add(FFileText::Read(Write.Path));
			}
			return Texts;
		}

		/** Behind an overlay. */
		TArray<FFileText> PreviewRepair(FCheckReport& Report, const FString& Platform)
		{
			FEditorArguments WithPerson; // somebody has to press the button
			WithPerson.Platform = Platform;
			FCheckReport Preview;
			Preview.Project = Report.Project;
			TArray<FFileText> Texts;
			RunEditor(Preview, WithPerson, EWrites::InOverlay, [&Texts](EToolkitVerdict) {
				HostNotifications::PressButton(AddButton);
				Texts = ReadPending();
			});
			Report.Problems = Preview.Problems; // those of the check, and what would keep the repair from writing
			return Texts;
		}

		/** Presses what a person would press, up to the restart. @return whether the editor wants to restart. */
		bool PressRepairButtons()
		{
			return HostNotifications::PressButton(AddButton).bDone && HostNotifications::PressButton(RestartButton).bDone && !HostEditor::GetRestartRequests().IsEmpty();
		}

		ECheckStatus Judge(const FCheckReport& Report, EToolkitVerdict Verdict, ECheckStatus WhenSound, ECheckStatus WhenMissing)
		{
			if (!Report.Problems.IsEmpty() || Verdict == EToolkitVerdict::None)
			{
				return ECheckStatus::Trouble;
			}
			return Verdict == EToolkitVerdict::Sound ? WhenSound : WhenMissing;
		}

		/** Of the configuration file it is known what stood in it before. */
		void AddWritten(FCheckReport& Report, const TArray<FString>& Files, const FFileText& Before, const FFileText& After)
		{
			for (const FString& File : Files)
			{
				Report.WrittenFiles.Add(File.Equals(After.Path) ? FileChanges::Compare(Before, After) : FFileChange{File, false, {}, {}});
			}
		}

		/** What goes wrong is told, but the repair is as good as it was: it does not count for the status. */
		void Record(FCheckReport& Report, const FString& ProjectDir, const FFileText& Before, const FFileText& After)
		{
			if (Before.Text == After.Text && Before.bExists == After.bExists)
			{
				return;
			}
			FRepairRecord Repair;
			Repair.bCreated = !Before.bExists;
			if (!RepairRecord::Make(Before.Text, After.Text, Repair))
			{
				HostProblems::Report(After.Path, 0, TEXT("the repair changed other lines as well, so that --undo cannot take it back"), TEXT("Compare the file with the one in version control."));
				RepairRecord::Forget(ProjectDir);
			}
			else
			{
				RepairRecord::Save(ProjectDir, Repair);
			}
			Report.Problems.Append(HostProblems::GetAll());
		}
	}

	FCheckReport Look(const FString& Project, const FEditorArguments& Editor, EPreview Preview)
	{
		FCheckReport Report;
		Report.Project = Project;
		TArray<FFileText> Pending;
		const EToolkitVerdict Verdict = RunEditor(Report, Editor, EWrites::InOverlay, [&Pending](EToolkitVerdict) { Pending = ReadPending(); });
		Report.Status = Judge(Report, Verdict, ECheckStatus::Sound, ECheckStatus::Missing);
		for (const FFileText& After : Pending)
		{
			Report.PendingWrites.Add(FileChanges::Compare(FFileText::Read(After.Path), After));
		}
		if (Preview == EPreview::OfRepair && Report.Status == ECheckStatus::Missing)
		{
			for (const FFileText& After : PreviewRepair(Report, Editor.Platform))
			{
				Report.Difference += FileChanges::Describe(FPaths::GetPath(Project), FFileText::Read(After.Path), After);
			}
		}
		return Report;
	}

	FCheckReport Repair(const FString& Project, const FEditorArguments& Editor)
	{
		FCheckReport Report;
		Report.Project = Project;
		const FString ProjectDir = FPaths::GetPath(Project);
		const FString IniFile = FPaths::Combine(ProjectDir, FString(TEXT("Config/DefaultEngine.ini")));
		if (!HostFiles::CheckWritable(IniFile) || !HostTextFiles::CheckReadable(IniFile))
		{
			Report.Problems = HostProblems::GetAll();
			return Report;
		}
		const HostFiles::FLock Lock(IniFile); // until the repair is recorded
		const FFileText Before = FFileText::Read(IniFile);
		TArray<FString> Written;
		bool bRestart = false;
		EToolkitVerdict Verdict = RunEditor(Report, Editor, EWrites::OnDisk, [&](EToolkitVerdict First) {
			bRestart = First == EToolkitVerdict::Missing && HostProblems::GetAll().IsEmpty() && PressRepairButtons();
			Written = HostFiles::GetWrittenFiles();
		});
		if (bRestart)
		{
			Verdict = RunEditor(Report, Editor, EWrites::OnDisk, [&Written](EToolkitVerdict) {
				for (const FString& File : HostFiles::GetWrittenFiles())
				{
					Written.AddUnique(File);
				}
			});
		}
		const FFileText After = FFileText::Read(IniFile);
		AddWritten(Report, Written, Before, After);
		Report.Difference = FileChanges::Describe(ProjectDir, Before, After);
		Report.Status = Judge(Report, Verdict, bRestart ? ECheckStatus::Repaired : ECheckStatus::Sound, ECheckStatus::StillMissing);
		if (Report.Status == ECheckStatus::StillMissing && Report.SpoiledBy.IsEmpty())
		{
			Report.LinesToAdd = CollisionLines::Make(ProjectDir);
		}
		Record(Report, ProjectDir, Before, After);
		return Report;
	}
}
