// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ExitStatus.h"
#include "Misc/Optional.h"

/** Files that come out of a pipe. */
namespace StandardInput
{
	/**
	 * Where one of the files is called "-", reads the standard input to its end; from then on that file's path leads to what was read.
	 * Files are those that the user may name; empty ones were not named.
	 * @return unset to go on; else how to end, after the reason has been printed: two files called so, or an input that cannot be read
	 */
	TOptional<EExitStatus> Take(const TArray<FString*>& Files, bool bJson);
}
