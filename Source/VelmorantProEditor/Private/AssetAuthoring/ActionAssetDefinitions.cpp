// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ActionAssetDefinitions.h"

#include "VelmorantAssets.h"

// Spelled so in the translations; do not correct it.
#define LOCTEXT_NAMESPACE "ActioAccsets_Factory"

namespace ActionAssetDefinitions
{
	// Shared by both definitions, made when the module loads.
	const FAssetCategoryPath Categories[] = {FAssetCategoryPath(LOCTEXT("VlmAction_Cat", "VelmorantAsset"), LOCTEXT("VlmAction_SubCat", "Actions"))};
	const FLinearColor Color(FColor::Cyan);
}

TConstArrayView<FAssetCategoryPath> UISPActionBase_AssetDefinition::GetAssetCategories() const
{
	return ActionAssetDefinitions::Categories;
}

TSoftClassPtr<UObject> UISPActionBase_AssetDefinition::GetAssetClass() const
{
	return UVlmISPActionsBase::StaticClass();
}

FLinearColor UISPActionBase_AssetDefinition::GetAssetColor() const
{
	return ActionAssetDefinitions::Color;
}

FText UISPActionBase_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("AssetTypeActions_ISPAction", "InteractiveSpotPlacement Action");
}

TConstArrayView<FAssetCategoryPath> UUnitVolumeAction_AssetDefinition::GetAssetCategories() const
{
	return ActionAssetDefinitions::Categories;
}

TSoftClassPtr<UObject> UUnitVolumeAction_AssetDefinition::GetAssetClass() const
{
	return UUnitVolumeAction::StaticClass();
}

FLinearColor UUnitVolumeAction_AssetDefinition::GetAssetColor() const
{
	return ActionAssetDefinitions::Color;
}

FText UUnitVolumeAction_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("AssetTypeActions_UnitVolumeAction", "UnitVolume Action");
}

#undef LOCTEXT_NAMESPACE
