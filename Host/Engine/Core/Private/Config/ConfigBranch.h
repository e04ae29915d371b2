// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** Which files a branch of the configuration is made of, for the platform that HostConfig names. */
namespace ConfigBranch
{
	/** The user's own file, under which the branch is known. */
	FString GetFile(const FString& Name);

	/** Whether Filename is such a file, and of which branch. */
	bool IsBranchFile(const FString& Filename, FString& OutName);

	/** Lowest first; the user's own file is the last. Any of them may be missing on disk. */
	TArray<FString> GetLayers(const FString& Name);
}
