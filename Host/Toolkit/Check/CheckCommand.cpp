// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckCommand.h"

#include "Check/CheckReport.h"
#include "Check/CollisionCheck.h"
#include "Check/RepairUndo.h"
#include "Console.h"
#include "Misc/Paths.h"
#include "ProgressLine.h"
#include "ProjectArgument.h"
#include "Refusal.h"

namespace CheckCommand
{
	/** Unset when there is no repair to take back. */
	TOptional<FCheckReport> Do(const FCheckArguments& Arguments, const FString& Project)
	{
		const FProgressLine Progress(TEXT("checking ") + FPaths::GetBaseFilename(Project));
		if (Arguments.bUndo)
		{
			return RepairUndo::Run(Project);
		}
		if (Arguments.bRepair)
		{
			return CollisionCheck::Repair(Project, Arguments.Editor);
		}
		return CollisionCheck::Look(Project, Arguments.Editor);
	}
}

EExitStatus CheckCommand::Run(const FCheckArguments& Arguments)
{
	FString Project;
	const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, Arguments.bJson);
	if (End.IsSet())
	{
		return End.GetValue();
	}
	const TOptional<FCheckReport> Report = Do(Arguments, Project);
	if (!Report.IsSet())
	{
		Refusal::Print(EExitStatus::Usage, {TEXT("No repair of this project is recorded: there is nothing to take back.")}, Arguments.bJson);
		return EExitStatus::Usage;
	}
	if (Arguments.bJson)
	{
		CheckReport::PrintJson(*Report);
	}
	else
	{
		CheckReport::PrintText(*Report, Arguments.bDiff ? CheckReport::EChanges::Difference : CheckReport::EChanges::Lines);
	}
	Console::PrintProblems(Report->Problems);
	return CheckReport::GetExitStatus(Report->Status);
}
