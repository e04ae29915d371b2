// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "HostFiles.h"

#include <string>
#include <sys/stat.h>

/** What may be written on disk and how. Paths are resolved and full; what stands in the way is reported. */
namespace WriteRules
{
	/** What stands at a path on disk. */
	struct FOnDisk
	{
		explicit FOnDisk(const std::string& Path)
			: bExists(stat(Path.c_str(), &Status) == 0)
		{
		}

		struct stat Status;
		bool bExists;
	};

	void Report(const std::string& Path, const FString& Message, const TCHAR* Remedy);

	/** What failed, and what the system says about it. Error is an errno. */
	FString Describe(const TCHAR* What, int Error);

	/** Whether what is on disk, if anything, may be replaced or removed. */
	bool MayReplace(const std::string& Path, const FOnDisk& OnDisk, HostFiles::EReadOnly ReadOnly);

	/** What lies in the user's settings or state folder is for its owner only; anything else follows the umask. */
	mode_t GetModeOfNewFile(const std::string& Path);

	/** Creates the folder and those above it. @return 0 or an errno, which is not reported */
	int MakeFolder(const std::string& Folder);

	bool MakeFolderOrReport(const std::string& Folder);
}
