// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/UIStyleConfiguration_AssetDefinition.h"

#include "VelmorantUIStyleConfiguration.h"

#define LOCTEXT_NAMESPACE "UVelmorantUIConfig_AssetDefinition"

TConstArrayView<FAssetCategoryPath> UUIStyleConfiguration_AssetDefinition::GetAssetCategories() const
{
	static const FAssetCategoryPath Categories[] = {FAssetCategoryPath(LOCTEXT("Cat", "VelmorantAsset"), LOCTEXT("SubCat", "UI"))};
	return Categories;
}

TSoftClassPtr<UObject> UUIStyleConfiguration_AssetDefinition::GetAssetClass() const
{
	return UVelmorantUIStyleConfiguration::StaticClass();
}

FLinearColor UUIStyleConfiguration_AssetDefinition::GetAssetColor() const
{
	return FLinearColor(FColor::Emerald);
}

FText UUIStyleConfiguration_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("AssetTypeActions_VelmorantUIConfig", "UI Style Configuration");
}

#undef LOCTEXT_NAMESPACE
