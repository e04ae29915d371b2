// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"

/** velmorant run: does in a project what a script says. */
namespace RunCommand
{
	EExitStatus Run(const FRunArguments& Arguments);
}
