// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Arguments.h"

/** velmorant contract: the companions of plugins against what the editor module expects of them. */
namespace ContractCommand
{
	EExitStatus Run(const FContractArguments& Arguments);
}
