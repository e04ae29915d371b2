// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"

/** velmorant install: the editor module goes into the toolkit's plugin. */
namespace InstallCommand
{
	EExitStatus Run(const FInstallArguments& Arguments);
}
