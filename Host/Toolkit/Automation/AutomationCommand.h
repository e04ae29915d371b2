// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "ExitStatus.h"

struct FAutomationArguments
{
	FString Project; // may be empty with bList or Compare
	FString Filter; // parts of the tests' paths, joined by '+'; empty: all
	FString Report; // the folder to export to; empty: nowhere
	FString Compare; // what an engine exported; "-" for the standard input; empty: nothing
	bool bList = false;
	bool bRepair = false; // also the test that edits the project's configuration and puts it back
};

/** The command "automation". */
namespace AutomationCommand
{
	EExitStatus Run(FAutomationArguments Arguments);
}
