// Copyright Velmorant. All Rights Reserved.

#include "Configurators/VelmorantAssetQueries.h"

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleManager.h"
#include "UObject/Class.h"

TArray<FAssetData> VelmorantAssetQueries::FindAssetsOfClass(const UClass& Class)
{
	FARFilter Filter;
	Filter.ClassPaths.Add(Class.GetStructPathName());

	TArray<FAssetData> Assets;
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get().GetAssets(Filter, Assets);
	return Assets;
}
