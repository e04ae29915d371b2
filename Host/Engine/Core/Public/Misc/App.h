// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** The application as a whole. */
struct CORE_API FApp
{
	/** Seconds on the application's clock. Host: the clock of the running editor, which passes only when somebody says so. */
	static double GetCurrentTime();

	/** Whether nobody is there to answer: the editor was started with -unattended. Notifications are shown all the same. */
	static bool IsUnattended();

	/** Whether anything can be drawn: not with -nullrhi, and not in a commandlet. There can be a user interface without. */
	static bool CanEverRender();
};
