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

	/** Of what was to be written. */
	void ReportNotWritten(const std::string& Path, const FString& Message, const TCHAR* Remedy);

	/** What failed, and what the system says about it. Error is an errno. */
	FString Describe(const TCHAR* What, int Error);

	/** Whether what is on disk, if anything, may be replaced or removed. */
	bool MayReplace(const std::string& Path, const FOnDisk& OnDisk, HostFiles::EReadOnly ReadOnly);

	/** Whether it lies in the user's settings or state folder: that is for its owner only. */
	bool IsPrivate(const std::string& Path);

	/** Private files, and those in which the editor saves settings of the project: an API key may be one. Folders are not meant. */
	bool IsForOwnerOnly(const std::string& Path);

	/** Anything that is not for the owner only follows the umask. */
	mode_t GetModeOfNewFile(const std::string& Path);

	/** Creates the folder and those above it. @return 0 or an errno, which is not reported */
	int MakeFolder(const std::string& Folder);

	/** @param For what the report names: the folder itself, or the file that was to be written in it */
	bool MakeFolderOrReport(const std::string& Folder, const std::string& For);
}
