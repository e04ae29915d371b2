// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ConfiguratorItemOverride_AssetDefinition.h"

#include "VelmorantAssets.h"

#define LOCTEXT_NAMESPACE "UConfiguratorItemOverride_AssetDefinition"

TConstArrayView<FAssetCategoryPath> UConfiguratorItemOverride_AssetDefinition::GetAssetCategories() const
{
	static const FAssetCategoryPath Categories[] = {FAssetCategoryPath(LOCTEXT("Cat", "VelmorantAsset"), LOCTEXT("SubCat", "Configurator"))};
	return Categories;
}

TSoftClassPtr<UObject> UConfiguratorItemOverride_AssetDefinition::GetAssetClass() const
{
	return UVelmorantConfiguratorItemOverride::StaticClass();
}

FLinearColor UConfiguratorItemOverride_AssetDefinition::GetAssetColor() const
{
	return FLinearColor(FColor::Emerald);
}

FText UConfiguratorItemOverride_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("AssetTypeActions_ConfiguratorItemOverride", "Configurator Items Override");
}

#undef LOCTEXT_NAMESPACE
