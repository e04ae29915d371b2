// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/MapLinkerAsset_TypeAction.h"

#include "VelmorantAssets.h"

FText FMapLinkerAsset_TypeAction::GetName() const
{
	return FText::FromString(TEXT("Maps Linker Asset")); // plain, not localised
}

UClass* FMapLinkerAsset_TypeAction::GetSupportedClass() const
{
	return UVelmorantMapsLinkerConfig::StaticClass();
}

FColor FMapLinkerAsset_TypeAction::GetTypeColor() const
{
	return FColor::Purple;
}
