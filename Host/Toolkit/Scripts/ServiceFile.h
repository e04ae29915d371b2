// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/RunCommand.h"

/** The data file that the toolkit's service answers from. */
namespace ServiceFile
{
	/** None for an empty path: then the service takes the file that the project names. */
	TArray<FRunInput> MakeInputs(const FString& Path);
}
