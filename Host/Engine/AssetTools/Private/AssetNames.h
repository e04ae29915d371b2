// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Names for new assets. */
namespace AssetNames
{
	/**
	 * The name to try after one that is taken: digits at the end are counted up, keeping their width when leading zeros fill it;
	 * without any, "1" is put behind.
	 */
	FString Increment(const FString& Name);

	/** Whether anything stands under the package name, on disk or in memory. */
	bool IsTaken(const FString& PackageName);

	/** The short name of a package, and its folder without a trailing slash. */
	void Split(const FString& PackageName, FString& OutFolder, FString& OutShortName);
}
