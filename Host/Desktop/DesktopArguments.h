// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "ExitStatus.h"
#include "Misc/Optional.h"

/** velmorant-editor PROJECT [--service FILE] [--theme light|dark] [--script FILE] [--pace SECONDS] [--screenshot FOLDER] */
struct FDesktopArguments
{
	FString Project; // a .uproject, or a folder with one in it
	FString Service; // the service's data file; empty: the one that the project names
	FString Theme; // "light", "dark", or empty for what the desktop has
	FString Script; // played in the window; empty for none
	bool bWelcome = false; // says what to try first
	FString Screenshot; // where pictures go; empty for none
	double Pace = 0.0; // seconds after each step of the script
};

namespace DesktopArguments
{
	/** @return unset to go on with OutArguments; else how to end, after help or what is wrong has been printed. */
	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FDesktopArguments& OutArguments);
}
