// Copyright Velmorant. All Rights Reserved.

#include "Misc/App.h"

#include "CoreGlobals.h"
#include "HostClock.h"
#include "Misc/CommandLine.h"
#include "Misc/Parse.h"

double FApp::GetCurrentTime()
{
	return HostClock::Now();
}

bool FApp::IsUnattended()
{
	return FParse::Param(FCommandLine::Get(), TEXT("unattended"));
}

bool FApp::CanEverRender()
{
	return !IsRunningCommandlet() && !FParse::Param(FCommandLine::Get(), TEXT("nullrhi"));
}
