// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

namespace ELogVerbosity
{
	/** The smaller, the more important. */
	enum Type : uint8
	{
		NoLogging = 0,
		Fatal, // ends the program
		Error,
		Warning,
		Display,
		Log,
		Verbose,
		VeryVerbose,

		All = VeryVerbose,
		NumVerbosity,
		VerbosityMask = 0xf
	};
}

/** "Warning", "Error", … as they stand in a log line. */
const TCHAR* ToString(ELogVerbosity::Type Verbosity);
