// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** The application as a whole. */
struct CORE_API FApp
{
	/** Seconds on the application's clock. Host: the clock of the running editor, which passes only when somebody says so. */
	static double GetCurrentTime();
};
