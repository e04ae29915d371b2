// Copyright Velmorant. All Rights Reserved.

#include "PlacementModeModule.h"

#include "HostPlacement.h"

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

void FPlacementModeModule::UnregisterPlaceableItem(FPlacementModeID ID)
{
	if (FCategory* Category = FindCategory(ID.Category))
	{
		Category->Items.RemoveAll([&ID](const FItem& Item) { return Item.ID.UniqueID == ID.UniqueID; });
	}
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

namespace HostPlacement
{
	static const FPlacementModeModule* GetModule()
	{
		return static_cast<const FPlacementModeModule*>(FModuleManager::GetModulePtr<IPlacementModeModule>("PlacementMode"));
	}
}

TArray<FName> HostPlacement::GetCategories()
{
	TArray<FName> Handles;
	if (const FPlacementModeModule* Module = GetModule())
	{
		TArray<FPlacementModeModule::FCategory> Categories = Module->GetCategories();
		Categories.StableSort([](const auto& Left, const auto& Right) { return Left.Info.SortOrder < Right.Info.SortOrder; });
		for (const FPlacementModeModule::FCategory& Category : Categories)
		{
			Handles.Add(Category.Info.UniqueHandle);
		}
	}
	return Handles;
}

TArray<TSharedRef<FPlaceableItem>> HostPlacement::GetItems(FName Handle)
{
	TArray<TSharedRef<FPlaceableItem>> Items;
	const FPlacementModeModule* Module = GetModule();
	const FPlacementModeModule::FCategory* Category = Module != nullptr ? Module->FindCategory(Handle) : nullptr;
	if (Category != nullptr)
	{
		for (const FPlacementModeModule::FItem& Item : Category->Items)
		{
			Items.Add(Item.Item);
		}
		const bool bByName = Category->Info.bSortable;
		Items.StableSort([bByName](const TSharedRef<FPlaceableItem>& Left, const TSharedRef<FPlaceableItem>& Right) {
			return bByName ? Left->DisplayName.CompareTo(Right->DisplayName) < 0 : Left->SortOrder.Get(0) < Right->SortOrder.Get(0);
		});
	}
	return Items;
}
