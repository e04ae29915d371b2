// Copyright Velmorant. All Rights Reserved.

#include "HAL/PlatformProcess.h"

#include "HostPaths.h"
#include "HostProcess.h"
#include "HostState.h"

namespace HostProcess
{
	THostState<TArray<FString>> OpenedUrls;

	const TArray<FString>& GetOpenedUrls()
	{
		return OpenedUrls.Get();
	}
}

void FPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error)
{
	// Parameters are added the way browsers get them on a command line.
	FString Address(URL);
	if (Parms != nullptr && *Parms != TEXT('\0'))
	{
		Address += FString(TEXT(" ")) + Parms;
	}
	HostProcess::OpenedUrls.Get().Add(MoveTemp(Address));
	if (Error != nullptr)
	{
		Error->Empty();
	}
}

const TCHAR* FPlatformProcess::UserSettingsDir()
{
	return *HostPaths::GetUserSettingsDir();
}
