// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"
#include "ExitStatus.h"

/** The command "automation". */
namespace AutomationCommand
{
	EExitStatus Run(const FAutomationArguments& Arguments);
}
