// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/MinimapDataAsset_TypeAction.h"

#include "MinimapConfigAsset.h"

FText FMinimapDataAsset_TypeAction::GetName() const
{
	return FText::FromString(TEXT("Minimap Config Asset")); // plain, not localised
}

UClass* FMinimapDataAsset_TypeAction::GetSupportedClass() const
{
	return UMinimapConfigAsset::StaticClass();
}

FColor FMinimapDataAsset_TypeAction::GetTypeColor() const
{
	return FColor::Purple;
}
