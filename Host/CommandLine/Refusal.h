// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ExitStatus.h"

/** How the program tells that it cannot even begin. */
namespace Refusal
{
	/** The lines on the error output; as JSON also one object on the output, {"status": 2, "error": "the lines"}. */
	void Print(EExitStatus Status, const TArray<FString>& Lines, bool bJson);

	/** The same for all problems that were reported so far, if there are any. */
	void PrintProblems(EExitStatus Status, bool bJson);
}
