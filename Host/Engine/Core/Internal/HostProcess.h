// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** What the running editor asked of the operating system. The host opens no browser; it remembers what would have been opened. */
namespace HostProcess
{
	/** Addresses given to FPlatformProcess::LaunchURL, oldest first. */
	const TArray<FString>& GetOpenedUrls();
}
