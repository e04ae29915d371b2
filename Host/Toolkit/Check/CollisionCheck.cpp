// Copyright Velmorant. All Rights Reserved.

#include "Check/CollisionCheck.h"

#include "Check/CheckRun.h"
#include "Check/RepairObstacle.h"
#include "Check/RepairRecord.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"

namespace CollisionCheck
{
	FString GetIniFile(const FString& Project)
	{
		return FPaths::Combine(FPaths::GetPath(Project), FString(TEXT("Config/DefaultEngine.ini")));
	}

	ECheckStatus Judge(const FCheckRun& Run, ECheckStatus WhenSound, ECheckStatus WhenMissing)
	{
		if (!Run.Problems.IsEmpty() || Run.Verdict == EToolkitVerdict::None)
		{
			return ECheckStatus::Trouble;
		}
		return Run.Verdict == EToolkitVerdict::Sound ? WhenSound : WhenMissing;
	}

	/** From what is on disk to what the run left in its overlay; what the check added comes from the engine. */
	FFileChange CompareWithDisk(const FCheckRun& Run, const FFileText& After)
	{
		const FFileText Before = FFileText::Read(After.Path);
		const FFileText& Checked = FileChanges::Find(Run.CheckFiles, Before);
		FFileChange Change = FileChanges::Compare(Before, After);
		Change.EngineLines = FileChanges::Compare(Before, Checked).AddedLines;
		Change.ToolkitLines = FileChanges::Compare(Checked, After).AddedLines;
		return Change;
	}

	/** What the repair would do, and why it would not help. */
	void Foretell(FCheckReport& Report, const FString& Platform)
	{
		FEditorArguments WithPerson; // somebody has to press the buttons
		WithPerson.Platform = Platform;
		const FCheckRun Run = CheckRun::Rehearse(Report.Project, WithPerson);
		const FFileText IniFile = FFileText::Read(GetIniFile(Report.Project));
		Report.Problems = Run.Problems; // what would keep the repair from writing
		Report.SpoiledBy = RepairObstacle::NumberAsOnDisk(Run.SpoiledBy, IniFile, FileChanges::Find(Run.Files, IniFile));
		const ECheckStatus Outcome = Judge(Run, ECheckStatus::Repaired, ECheckStatus::StillMissing);
		if (Outcome == ECheckStatus::StillMissing)
		{
			RepairObstacle::Explain(Run, IniFile, Report);
		}
		else if (Outcome == ECheckStatus::Repaired)
		{
			for (const FFileText& After : Run.Files)
			{
				Report.RepairWrites.Add(CompareWithDisk(Run, After));
				Report.Difference += FileChanges::Describe(FPaths::GetPath(Report.Project), FFileText::Read(After.Path), After);
			}
		}
	}

	HostFiles::EWrite Write(const HostFiles::FPendingWrite& Pending)
	{
		if (Pending.bDeleted)
		{
			return HostFiles::Delete(Pending.Path) ? HostFiles::EWrite::Done : HostFiles::EWrite::Failed;
		}
		return HostFiles::WriteOver(Pending.Path, Pending.Bytes, Pending.Basis);
	}

	/** Done when all was written. Failures are reported. */
	HostFiles::EWrite WriteToDisk(FCheckReport& Report, const FCheckRun& Run)
	{
		HostFiles::EWrite Result = HostFiles::EWrite::Done;
		for (int32 Index = 0; Result == HostFiles::EWrite::Done && Index < Run.Writes.Num(); ++Index)
		{
			const FFileChange Change = CompareWithDisk(Run, Run.Files[Index]);
			Result = Write(Run.Writes[Index]);
			if (Result == HostFiles::EWrite::Done)
			{
				Report.WrittenFiles.Add(Change);
			}
		}
		return Result;
	}

	/** What goes wrong is told, but the repair is as good as it was: it does not count for the status. */
	void Record(const FString& ProjectDir, const FFileText& Before, const FFileText& After)
	{
		if (Before.Text == After.Text && Before.bExists == After.bExists)
		{
			return;
		}
		FRepairRecord Repair;
		Repair.bCreated = !Before.bExists;
		if (!RepairRecord::Make(Before.Text.Get(), After.Text.Get(), Repair))
		{
			HostProblems::Report(After.Path, 0, TEXT("the repair changed other lines as well, so that --undo cannot take it back"), TEXT("Compare the file with the one in version control."));
			RepairRecord::Forget(ProjectDir);
		}
		else
		{
			RepairRecord::Save(ProjectDir, Repair);
		}
	}

	/** Makes the repair that was rehearsed. @return Changed, and nothing is done, when the file is not as it was rehearsed on */
	HostFiles::EWrite Make(FCheckReport& Report, const FCheckRun& Run, const FFileText& Before)
	{
		const FString ProjectDir = FPaths::GetPath(Report.Project);
		Report.Messages = Run.Messages;
		const HostFiles::EWrite Result = WriteToDisk(Report, Run);
		if (Result == HostFiles::EWrite::Changed)
		{
			return Result;
		}
		if (Result == HostFiles::EWrite::Failed || !HostProblems::GetAll().IsEmpty()) // a disk that fails may not keep what was written
		{
			Report.Status = ECheckStatus::Trouble;
		}
		const FFileText After = FFileText::Read(Before.Path);
		Report.Difference = FileChanges::Describe(ProjectDir, Before, After);
		Record(ProjectDir, Before, After);
		Report.Problems.Append(HostProblems::GetAll());
		return Result;
	}

	FCheckReport Look(const FString& Project, const FEditorArguments& Editor)
	{
		FCheckReport Report;
		Report.Project = Project;
		const FCheckRun Run = CheckRun::Check(Project, Editor);
		Report.Messages = Run.Messages;
		Report.SpoiledBy = Run.SpoiledBy;
		Report.Problems = Run.Problems;
		Report.Status = Judge(Run, ECheckStatus::Sound, ECheckStatus::Missing);
		for (const FFileText& After : Run.Files)
		{
			Report.PendingWrites.Add(CompareWithDisk(Run, After));
		}
		if (Report.Status == ECheckStatus::Missing)
		{
			Foretell(Report, Editor.Platform);
		}
		return Report;
	}

	/** In the locked folder. @return Changed when another program changed the file between the rehearsal and the write: nothing is done then */
	HostFiles::EWrite TryRepair(const FEditorArguments& Editor, FCheckReport& Report)
	{
		const FFileText Before = FFileText::Read(GetIniFile(Report.Project));
		const FCheckRun Run = CheckRun::Rehearse(Report.Project, Editor);
		Report.Messages = Run.CheckMessages;
		Report.SpoiledBy = Run.SpoiledBy;
		Report.Problems = Run.Problems;
		Report.Status = Judge(Run, Run.bRepaired ? ECheckStatus::Repaired : ECheckStatus::Sound, ECheckStatus::StillMissing);
		if (Report.Status == ECheckStatus::Repaired)
		{
			return Make(Report, Run, Before);
		}
		if (Report.Status == ECheckStatus::StillMissing)
		{
			Report.SpoiledBy = RepairObstacle::NumberAsOnDisk(Run.SpoiledBy, Before, FileChanges::Find(Run.Files, Before));
			RepairObstacle::Explain(Run, Before, Report);
		}
		return HostFiles::EWrite::Done;
	}

	FCheckReport Repair(const FString& Project, const FEditorArguments& Editor)
	{
		FCheckReport Report;
		Report.Project = Project;
		const FString IniFile = GetIniFile(Project);
		if (!HostFiles::CheckWritable(IniFile) || !HostTextFiles::CheckReadable(IniFile))
		{
			Report.Problems = HostProblems::GetAll();
			return Report;
		}
		const HostFiles::FLock Lock(IniFile); // until the repair is recorded
		RepairRecord::RemoveLeftovers(IniFile);
		constexpr int32 MaxAttempts = 5;
		for (int32 Attempt = 0; Attempt < MaxAttempts; ++Attempt)
		{
			Report = FCheckReport();
			Report.Project = Project;
			if (TryRepair(Editor, Report) != HostFiles::EWrite::Changed)
			{
				return Report;
			}
		}
		HostProblems::ReportNotWritten(HostFiles::Resolve(IniFile), TEXT("the file was not written: another program keeps changing it"), TEXT("Try again; the file is as the other one left it."));
		Report.Status = ECheckStatus::Trouble;
		Report.Problems = HostProblems::GetAll();
		return Report;
	}
}
