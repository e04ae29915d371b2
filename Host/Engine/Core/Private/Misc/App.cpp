// Copyright Velmorant. All Rights Reserved.

#include "Misc/App.h"

#include "HostClock.h"

double FApp::GetCurrentTime()
{
	return HostClock::Now();
}
