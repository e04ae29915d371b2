// Copyright Velmorant. All Rights Reserved.

#include "Check/RepairUndo.h"

#include "Check/FileChanges.h"
#include "Check/RepairRecord.h"
#include "HostConfig.h"
#include "HostFiles.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"

#include <string>

namespace RepairUndo
{
	/** A file that the repair made goes when nothing else has come into it. */
	bool DeleteIfEmpty(const FString& File)
	{
		std::string Text;
		const bool bEmpty = HostTextFiles::ReadUtf8(File, Text) == HostFiles::ERead::Done && Text.find_first_not_of(" \t\r\n") == std::string::npos;
		return !bEmpty || HostFiles::Delete(File);
	}

	ECheckStatus TakeBack(const FString& ProjectDir, const FString& File, const FRepairRecord& Record, FString& OutReason)
	{
		switch (HostConfig::RemoveLines(File, Record.Added, OutReason))
		{
			case HostConfig::ERemoval::Failed:
				return ECheckStatus::Trouble;
			case HostConfig::ERemoval::NotThere:
				return ECheckStatus::NotUndone;
			case HostConfig::ERemoval::Done:
				break;
		}
		const bool bDone = (!Record.bCreated || DeleteIfEmpty(File)) && RepairRecord::Forget(ProjectDir);
		return bDone && HostProblems::GetAll().IsEmpty() ? ECheckStatus::Undone : ECheckStatus::Trouble;
	}

	TOptional<FCheckReport> Run(const FString& Project)
	{
		const FString ProjectDir = FPaths::GetPath(Project);
		const FString File = FPaths::Combine(ProjectDir, FString(TEXT("Config/DefaultEngine.ini")));
		FRepairRecord Record;
		FCheckReport Report;
		Report.Project = Project;
		RepairRecord::RemoveLeftovers(File);
		switch (RepairRecord::Load(ProjectDir, Record))
		{
			case HostFiles::ERead::Missing:
				return TOptional<FCheckReport>();
			case HostFiles::ERead::Failed:
				break;
			case HostFiles::ERead::Done:
			{
				const HostFiles::FLock Lock(File);
				const FFileText Before = FFileText::Read(File);
				Report.Status = TakeBack(ProjectDir, File, Record, Report.Reason);
				const FFileText After = FFileText::Read(File);
				Report.WrittenFiles.Add(FileChanges::Compare(Before, After));
				Report.Difference = FileChanges::Describe(ProjectDir, Before, After);
				break;
			}
		}
		Report.Problems = HostProblems::GetAll();
		return Report;
	}
}
