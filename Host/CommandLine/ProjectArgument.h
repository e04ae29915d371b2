// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "ExitStatus.h"
#include "Misc/Optional.h"

namespace ProjectArgument
{
	/**
	 * Finds the project that the user named and makes sure that its descriptor can be read.
	 * @param bJson whether a reason to end is printed as a JSON object, too
	 * @return unset to go on with OutProject, the full path of its .uproject; else how to end, after the reason has been printed.
	 */
	TOptional<EExitStatus> Find(const FString& FileOrFolder, FString& OutProject, bool bJson);
}
