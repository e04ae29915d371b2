// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** The time of the running editor. It passes only when somebody says so: nothing waits and nothing sleeps. */
namespace HostClock
{
	/** Seconds since the editor came up. */
	CORE_API double Now();

	/** Lets Seconds pass (not negative; zero is fine) and then ticks the core ticker once. */
	CORE_API void Advance(double Seconds);
}
