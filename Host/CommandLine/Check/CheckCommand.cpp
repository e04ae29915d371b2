// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckCommand.h"

#include "Check/CheckReport.h"
#include "Check/CollisionCheck.h"
#include "Console.h"
#include "ProjectArgument.h"

EExitStatus CheckCommand::Run(const FCheckArguments& Arguments)
{
	FString Project;
	const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, Arguments.bJson);
	if (End.IsSet())
	{
		return End.GetValue();
	}
	const FCheckReport Report = Arguments.bRepair ? CollisionCheck::Repair(Project) : CollisionCheck::Look(Project);
	if (Arguments.bJson)
	{
		CheckReport::PrintJson(Report);
	}
	else
	{
		CheckReport::PrintText(Report);
	}
	Console::PrintProblems(Report.Problems);
	return CheckReport::GetExitStatus(Report.Status);
}
