// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "ExitStatus.h"

/** velmorant install PLUGIN-FOLDER [--dry-run] [--with-tests] [--force] */
struct FInstallArguments
{
	FString PluginFolder;
	bool bDryRun = false;
	bool bWithTests = false;
	bool bForce = false;
};

/** velmorant install: the editor module goes into the toolkit's plugin. */
namespace InstallCommand
{
	EExitStatus Run(const FInstallArguments& Arguments);
}
