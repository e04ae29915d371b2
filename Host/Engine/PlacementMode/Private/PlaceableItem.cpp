// Copyright Velmorant. All Rights Reserved.

#include "IPlacementModeModule.h"

#include "UObject/Class.h"

FPlaceableItem::FPlaceableItem(UActorFactory* InFactory, const FAssetData& InAssetData, TOptional<int32> InSortOrder)
	: Factory(InFactory)
	, AssetData(InAssetData)
	, SortOrder(InSortOrder)
{
	SetNamesFromAsset();
}

FPlaceableItem::FPlaceableItem(UClass& InActorFactoryClass, const FAssetData& InAssetData, FName InClassThumbnailBrushOverride, FName InClassIconBrushOverride,
	TOptional<FLinearColor> InAssetTypeColorOverride, TOptional<int32> InSortOrder, TOptional<FText> InDisplayName)
	: Factory(Cast<UActorFactory>(InActorFactoryClass.GetDefaultObject()))
	, AssetData(InAssetData)
	, ClassThumbnailBrushOverride(InClassThumbnailBrushOverride)
	, ClassIconBrushOverride(InClassIconBrushOverride)
	, AssetTypeColorOverride(InAssetTypeColorOverride)
	, SortOrder(InSortOrder)
{
	SetNamesFromAsset();
	if (InDisplayName.IsSet())
	{
		DisplayName = InDisplayName.GetValue();
	}
}

void FPlaceableItem::SetNamesFromAsset()
{
	if (AssetData.IsValid())
	{
		NativeName = AssetData.AssetName.ToString();
		// A native class is an object that is always in memory: asking for it loads nothing.
		const UClass* Class = AssetData.AssetClassPath == UClass::StaticClass()->GetClassPathName() ? Cast<UClass>(AssetData.GetAsset()) : nullptr;
		DisplayName = Class != nullptr ? Class->GetDisplayNameText() : FText::FromName(AssetData.AssetName);
	}
	else if (Factory != nullptr)
	{
		NativeName = Factory->GetClass()->GetName();
		DisplayName = Factory->GetClass()->GetDisplayNameText();
	}
}
