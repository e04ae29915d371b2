// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ExitStatus.h"

/** velmorant contract PLUGIN-FOLDER… */
struct FContractArguments
{
	TArray<FString> PluginFolders;
};

/** velmorant contract: the companions of plugins against what the editor module expects of them. */
namespace ContractCommand
{
	EExitStatus Run(const FContractArguments& Arguments);
}
