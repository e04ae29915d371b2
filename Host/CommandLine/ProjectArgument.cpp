// Copyright Velmorant. All Rights Reserved.

#include "ProjectArgument.h"

#include "Console.h"
#include "HostProblems.h"
#include "HostProject.h"
#include "Refusal.h"

TOptional<EExitStatus> ProjectArgument::Find(const FString& FileOrFolder, FString& OutProject, bool bJson)
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
