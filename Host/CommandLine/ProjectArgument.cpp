// Copyright Velmorant. All Rights Reserved.

#include "ProjectArgument.h"

#include "Console.h"
#include "HostProblems.h"
#include "HostProject.h"
#include "Refusal.h"

TOptional<EExitStatus> ProjectArgument::Find(const FString& FileOrFolder, FString& OutProject, bool bJson)
{
	TOptional<EExitStatus> End;
	bool bUnread = false;
	OutProject = HostProject::Find(FileOrFolder, &bUnread);
	FHostProject Descriptor;
	if (OutProject.IsEmpty())
	{
		End = bUnread ? EExitStatus::Trouble : EExitStatus::Usage;
	}
	else if (!HostProject::Read(OutProject, Descriptor))
	{
		End = EExitStatus::Trouble;
	}
	if (End.IsSet())
	{
		Refusal::PrintProblems(End.GetValue(), bJson);
	}
	else
	{
		Console::PrintProblems(HostProblems::GetAll());
	}
	return End;
}
