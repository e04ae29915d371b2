// Copyright Velmorant. All Rights Reserved.

#include "ProjectArgument.h"

#include "Console.h"
#include "HostProblems.h"
#include "HostProject.h"

TOptional<EExitStatus> ProjectArgument::Find(const FString& FileOrFolder, FString& OutProject)
{
	TOptional<EExitStatus> End;
	OutProject = HostProject::Find(FileOrFolder);
	FHostProject Descriptor;
	if (OutProject.IsEmpty())
	{
		End = EExitStatus::Usage;
	}
	else if (!HostProject::Read(OutProject, Descriptor))
	{
		End = EExitStatus::Trouble;
	}
	Console::PrintProblems(HostProblems::GetAll());
	return End;
}
