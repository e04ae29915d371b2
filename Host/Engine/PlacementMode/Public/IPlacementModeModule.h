// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ActorFactories/ActorFactory.h"
#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Math/Color.h"
#include "Misc/Guid.h"
#include "Misc/Optional.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Textures/SlateIcon.h"

/** A category of things that a level designer can place. */
struct PLACEMENTMODE_API FPlacementCategoryInfo
{
	FPlacementCategoryInfo(FText InDisplayName, FName InHandle, FString InTag = FString(), int32 InSortOrder = 0, bool bInSortable = true)
		: FPlacementCategoryInfo(InDisplayName, FSlateIcon(), InHandle, InTag, InSortOrder, bInSortable)
	{
	}

	FPlacementCategoryInfo(FText InDisplayName, FSlateIcon InDisplayIcon, FName InHandle, FString InTag = FString(), int32 InSortOrder = 0, bool bInSortable = true)
		: DisplayName(InDisplayName)
		, DisplayIcon(InDisplayIcon)
		, UniqueHandle(InHandle)
		, SortOrder(InSortOrder)
		, TagMetaData(InTag)
		, bSortable(bInSortable)
	{
	}

	FText DisplayName;
	FText ShortDisplayName; // for where room is scarce; empty stands for DisplayName
	FSlateIcon DisplayIcon;
	FName UniqueHandle;
	int32 SortOrder; // ascending among the categories
	FString TagMetaData;
	bool bSortable; // whether its items are shown by name instead of in order of registration
};

/** Something that can be placed: an asset or a class, and the factory that makes an actor of it. */
struct PLACEMENTMODE_API FPlaceableItem
{
	FPlaceableItem() = default;

	/** @param InFactory null leaves the choice to the editor */
	FPlaceableItem(UActorFactory* InFactory, const FAssetData& InAssetData, TOptional<int32> InSortOrder = TOptional<int32>());

	/** Brush names are looked up in all registered style sets; None takes those of the asset's class. An unset name takes the asset's. */
	FPlaceableItem(UClass& InActorFactoryClass, const FAssetData& InAssetData, FName InClassThumbnailBrushOverride = NAME_None, FName InClassIconBrushOverride = NAME_None,
		TOptional<FLinearColor> InAssetTypeColorOverride = TOptional<FLinearColor>(), TOptional<int32> InSortOrder = TOptional<int32>(), TOptional<FText> InDisplayName = TOptional<FText>());

	UActorFactory* Factory = nullptr; // a class default object, or null
	FAssetData AssetData;
	FName ClassThumbnailBrushOverride;
	FName ClassIconBrushOverride;
	bool bAlwaysUseGenericThumbnail = false;
	TOptional<FLinearColor> AssetTypeColorOverride;
	TOptional<int32> SortOrder;
	FText DisplayName;
	FString NativeName; // class or asset name, for searching

private:
	void SetNamesFromAsset();
};

/** Names one registered item, to unregister it. */
struct PLACEMENTMODE_API FPlacementModeID
{
	FName Category;
	FGuid UniqueID;
};

/** The registry of what can be placed. */
class PLACEMENTMODE_API IPlacementModeModule : public IModuleInterface
{
public:
	static IPlacementModeModule& Get() { return FModuleManager::LoadModuleChecked<IPlacementModeModule>("PlacementMode"); }

	/** @return false when the handle is in use; the category that has it stays */
	virtual bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) = 0;

	/** Unregisters the category's items too. An unknown handle is ignored. */
	virtual void UnregisterPlacementCategory(FName Handle) = 0;

	/** @return unset when there is no such category */
	virtual TOptional<FPlacementModeID> RegisterPlaceableItem(FName CategoryName, const TSharedRef<FPlaceableItem>& Item) = 0;

	/** Null when there is none. Good until a category is registered or unregistered. */
	virtual const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const = 0;

	/** Adds the items of the category, in order of registration; nothing for an unknown one. */
	virtual void GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const = 0;
};
