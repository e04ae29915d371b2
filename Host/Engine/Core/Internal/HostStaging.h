// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

/** Work on several files that is prepared in a folder of its own and then put in its place, step by step. On disk only: no overlay knows of it. */
namespace HostStaging
{
	/**
	 * Gives a file or folder its place, in one step. A file that stands there is replaced; its mode and, where permitted, owner are kept, and
	 * the rules of HostFiles::Write() hold for it. Both places must be on one file system. False, and told, when it could not be done.
	 */
	bool Move(const FString& From, const FString& To);

	/** With all that is in it. True when it is gone afterwards. Links in it go, what they lead to stays. */
	bool DeleteDirectory(const FString& Path);

	/** Seconds since 1970 at which a file was changed last; 0 for one that is not there. */
	double GetTimeOfChange(const FString& Path);
}
