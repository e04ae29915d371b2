// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** The switches that the editor was started with, as one text; for FParse. Belongs to the process: whoever boots an editor sets it. */
struct FCommandLine
{
	static bool IsInitialized();
	/** Empty until set. Good until the next Set or Append. */
	static const TCHAR* Get();
	static bool Set(const TCHAR* NewCommandLine);
};
