// Copyright Velmorant. All Rights Reserved.

#include "HAL/PlatformProcess.h"

#include "Containers/StringConv.h"
#include "HostPaths.h"
#include "HostProcess.h"
#include "HostState.h"

#include <filesystem>

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

namespace PlatformProcess
{
	struct FTempDir
	{
		FTempDir()
		{
			std::error_code Fault; // a system without such a folder
			const std::filesystem::path Folder = std::filesystem::temp_directory_path(Fault);
			Path = FString(UTF8_TO_TCHAR(Fault ? "/tmp" : Folder.c_str())) + TEXT("/");
		}

		FString Path;
	};

	THostState<FTempDir> TempDir;
}

const TCHAR* FPlatformProcess::UserTempDir()
{
	return *PlatformProcess::TempDir->Path;
}
