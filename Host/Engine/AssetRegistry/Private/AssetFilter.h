// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

/** A filter made ready for many assets: names in sets, classes below the wanted ones looked up once. Lives as long as one query. */
class FAssetFilter
{
public:
	explicit FAssetFilter(const FARFilter& Filter);

	bool Fits(const FAssetData& Asset) const;

private:
	bool FitsPath(FName PackagePath) const;

	TSet<FName> PackageNames;
	TSet<FName> PackagePaths;
	TSet<FString> ObjectPaths; // text of soft object paths; case does not count
	TSet<FTopLevelAssetPath> ClassPaths;
	bool bRecursivePaths;
	bool bByClass; // a class was asked for, even if every one was excluded again
};
