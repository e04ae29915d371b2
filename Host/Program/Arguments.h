// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Automation/AutomationCommand.h"
#include "Check/CheckCommand.h"
#include "Install/ContractCommand.h"
#include "Install/InstallCommand.h"
#include "Misc/Optional.h"
#include "Run/RunCommand.h"

/** What the program was asked to do: exactly one of these is set. */
struct FArguments
{
	TOptional<FCheckArguments> Check;
	TOptional<FRunArguments> Run;
	TOptional<FInstallArguments> Install;
	TOptional<FContractArguments> Contract;
	TOptional<FAutomationArguments> Automation;
};

namespace Arguments
{
	/** @return unset to go on with OutArguments; else how to end, after help or what is wrong has been printed. */
	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FArguments& OutArguments);
}
