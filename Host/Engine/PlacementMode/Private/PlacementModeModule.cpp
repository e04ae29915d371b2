// Copyright Velmorant. All Rights Reserved.

#include "PlacementModeModule.h"

void FPlacementModeModule::GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const
{
	if (const FCategory* Category = FindCategory(CategoryName))
	{
		for (const FItem& Item : Category->Items)
		{
			OutItems.Add(Item.Item);
		}
	}
}

IMPLEMENT_MODULE(FPlacementModeModule, PlacementMode)

bool FPlacementModeModule::RegisterPlacementCategory(const FPlacementCategoryInfo& Info)
{
	if (FindCategory(Info.UniqueHandle) != nullptr)
	{
		return false;
	}
	Categories.Add(FCategory{Info, {}});
	return true;
}

void FPlacementModeModule::UnregisterPlacementCategory(FName Handle)
{
	Categories.RemoveAll([Handle](const FCategory& Category) { return Category.Info.UniqueHandle == Handle; });
}

TOptional<FPlacementModeID> FPlacementModeModule::RegisterPlaceableItem(FName CategoryName, const TSharedRef<FPlaceableItem>& Item)
{
	FCategory* Category = FindCategory(CategoryName);
	if (Category == nullptr)
	{
		return TOptional<FPlacementModeID>();
	}
	const FPlacementModeID ID{CategoryName, FGuid::NewGuid()};
	Category->Items.Add(FItem{ID, Item});
	return ID;
}

const FPlacementCategoryInfo* FPlacementModeModule::GetRegisteredPlacementCategory(FName UniqueHandle) const
{
	const FCategory* Category = FindCategory(UniqueHandle);
	return Category != nullptr ? &Category->Info : nullptr;
}

const FPlacementModeModule::FCategory* FPlacementModeModule::FindCategory(FName Handle) const
{
	return Categories.FindByPredicate([Handle](const FCategory& Category) { return Category.Info.UniqueHandle == Handle; });
}

FPlacementModeModule::FCategory* FPlacementModeModule::FindCategory(FName Handle)
{
	return Categories.FindByPredicate([Handle](const FCategory& Category) { return Category.Info.UniqueHandle == Handle; });
}
