// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/AssetDefinitions.h"

#include "VelmorantAssets.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantUIStyleConfiguration.h"

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
