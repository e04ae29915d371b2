// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/AssetTypeActions.h"

#include "MinimapConfigAsset.h"
#include "VelmorantAssets.h"

// The names are plain, not localised.

FText FMapLinkerAsset_TypeAction::GetName() const
{
	return FText::FromString(TEXT("Maps Linker Asset"));
}

UClass* FMapLinkerAsset_TypeAction::GetSupportedClass() const
{
	return UVelmorantMapsLinkerConfig::StaticClass();
}

FText FMinimapDataAsset_TypeAction::GetName() const
{
	return FText::FromString(TEXT("Minimap Config Asset"));
}

UClass* FMinimapDataAsset_TypeAction::GetSupportedClass() const
{
	return UMinimapConfigAsset::StaticClass();
}
