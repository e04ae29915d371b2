// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"

namespace VelmorantAssetQueries
{
	/** Every asset of exactly that class in the project, saved or not, in the asset registry's order. */
	TArray<FAssetData> FindAssetsOfClass(const UClass& Class);
}
