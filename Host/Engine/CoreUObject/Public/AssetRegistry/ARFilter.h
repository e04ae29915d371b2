// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

/**
 * Which assets a query wants: those that fit every component that is not empty, by any element of it.
 * A filter whose components are all empty is invalid.
 */
struct FARFilter
{
	TArray<FName> PackageNames;
	TArray<FName> PackagePaths;
	TArray<FSoftObjectPath> SoftObjectPaths;
	TArray<FTopLevelAssetPath> ClassPaths;

	/** With bRecursiveClasses: these classes are left out, with all below them. */
	TSet<FTopLevelAssetPath> RecursiveClassPathsExclusionSet;

	bool bRecursivePaths = false; // folders below PackagePaths count too
	bool bRecursiveClasses = false; // classes below ClassPaths count too
	bool bIncludeOnlyOnDiskAssets = false;

	bool IsEmpty() const
	{
		return PackageNames.IsEmpty() && PackagePaths.IsEmpty() && SoftObjectPaths.IsEmpty() && ClassPaths.IsEmpty();
	}
};
