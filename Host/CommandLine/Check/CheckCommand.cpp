// Copyright Velmorant. All Rights Reserved.

#include "Check/CheckCommand.h"

#include "Check/CheckReport.h"
#include "Check/CollisionCheck.h"
#include "Console.h"
#include "HostProblems.h"
#include "HostProject.h"

EExitStatus CheckCommand::Run(const FCheckArguments& Arguments)
{
	const FString Project = HostProject::Find(Arguments.Project);
	if (Project.IsEmpty())
	{
		Console::PrintProblems(HostProblems::GetAll());
		return EExitStatus::Usage;
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
