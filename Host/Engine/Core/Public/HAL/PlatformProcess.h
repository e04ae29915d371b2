// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"

/** Services of the operating system around this process. */
struct FPlatformProcess
{
	/** Host: opens nothing; the address is recorded. Error, where given, is emptied. */
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);

	/** The user's own configuration folder, with a trailing slash. Good until the editor goes down. */
	static const TCHAR* UserSettingsDir();

	/** The folder for files that nobody needs for long, with a trailing slash. Good until the editor goes down. */
	static const TCHAR* UserTempDir();
};
