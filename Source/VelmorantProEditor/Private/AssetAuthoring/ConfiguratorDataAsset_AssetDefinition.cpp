// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ConfiguratorDataAsset_AssetDefinition.h"

#include "VelmorantConfiguratorDataAsset.h"

#define LOCTEXT_NAMESPACE "UConfiguratorDataAsset_AssetDefinition"

TConstArrayView<FAssetCategoryPath> UConfiguratorDataAsset_AssetDefinition::GetAssetCategories() const
{
	static const FAssetCategoryPath Categories[] = {FAssetCategoryPath(LOCTEXT("Cat", "VelmorantAsset"), LOCTEXT("SubCat", "Configurator"))};
	return Categories;
}

TSoftClassPtr<UObject> UConfiguratorDataAsset_AssetDefinition::GetAssetClass() const
{
	return UVelmorantConfiguratorDataAsset::StaticClass();
}

FLinearColor UConfiguratorDataAsset_AssetDefinition::GetAssetColor() const
{
	return FLinearColor(FColor::Purple);
}

FText UConfiguratorDataAsset_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("AssetTypeActions_ConfiguratorDataAsset", "Configurator Data Asset");
}

#undef LOCTEXT_NAMESPACE
