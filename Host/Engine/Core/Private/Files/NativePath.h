// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <string>
#include <string_view>

/** Between the editor's paths (UTF-16) and those of the operating system (UTF-8). */
namespace NativePath
{
	std::string FromString(const FString& Path);
	FString ToString(std::string_view Path);

	/** It may have been deleted under the process; relative paths count from the root then, and lead nowhere. */
	bool HasWorkingDirectory();

	/** Full path without "." and ".." parts and without a slash at its end; symbolic links stay. */
	std::string MakeFull(const FString& Path);

	/** Where a read or write of Path ends up: symbolic links followed, also one whose target does not exist yet. */
	std::string Resolve(const FString& Path);

	/** The folder of a full path; "/" for what lies in the root. */
	std::string FolderOf(const std::string& FullPath);
}
