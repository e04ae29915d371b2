// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IPlacementModeModule.h"

/** Keeps categories and items in order of registration. */
class FPlacementModeModule : public IPlacementModeModule
{
public:
	struct FItem
	{
		FPlacementModeID ID;
		TSharedRef<FPlaceableItem> Item;
	};

	struct FCategory
	{
		FPlacementCategoryInfo Info;
		TArray<FItem> Items;
	};

	//~ Begin IPlacementModeModule
	virtual bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) override;
	virtual void UnregisterPlacementCategory(FName Handle) override;
	virtual TOptional<FPlacementModeID> RegisterPlaceableItem(FName CategoryName, const TSharedRef<FPlaceableItem>& Item) override;
	virtual const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const override;
	virtual void GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const override;
	//~ End IPlacementModeModule

	const TArray<FCategory>& GetCategories() const { return Categories; }
	const FCategory* FindCategory(FName Handle) const;

private:
	FCategory* FindCategory(FName Handle);

	TArray<FCategory> Categories;
};
