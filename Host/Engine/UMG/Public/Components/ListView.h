// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/ListViewBase.h"

#include "ListView.generated.h"

class ITableRow;
class STableViewBase;
template<typename ItemType>
class SListView;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FSimpleListItemEventDynamic, UObject*, Item);

/** A list of objects. */
UCLASS()
class UMG_API UListView : public UListViewBase
{
	GENERATED_BODY()

public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FSimpleListItemEvent, UObject*);

	/** All items, whether they show or not. */
	UFUNCTION(BlueprintCallable, Category = "ListView")
	int32 GetNumItems() const { return ListItems.Num(); }

	const TArray<UObject*>& GetListItems() const { return ListItems; }

	/** Replaces all items; a selected one that is not among the new ones is deselected. Takes arrays of raw and of object pointers. */
	template<typename ItemObjectT>
	void SetListItems(const TArray<ItemObjectT>& InListItems)
	{
		ListItems.Reset(InListItems.Num());
		for (const ItemObjectT& Item : InListItems)
		{
			if (Item != nullptr)
			{
				ListItems.Add(Item);
			}
		}
		OnItemsChanged();
	}

	/** Null clears the selection. */
	void SetSelectedItem(const UObject* Item);
	UObject* GetSelectedItem() const;

	virtual void RequestRefresh() override;

	virtual FSimpleListItemEvent& OnItemClicked() const { return OnItemClickedEvent; }

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void OnItemsChanged();

	TSharedRef<ITableRow> HandleGenerateRow(UObject* Item, const TSharedRef<STableViewBase>& OwnerTable);
	void HandleItemClicked(UObject* Item);

private:
	/** SetListItems() for Blueprints. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Set List Items"))
	void BP_SetListItems(const TArray<UObject*>& InListItems);

	/** GetSelectedItem() for Blueprints. */
	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Get Selected Item"))
	UObject* BP_GetSelectedItem() const { return GetSelectedItem(); }

	UFUNCTION(BlueprintCallable, Category = "ListView", meta = (DisplayName = "Clear Selection"))
	void BP_ClearSelection() { SetSelectedItem(nullptr); }

	TSharedPtr<SListView<UObject*>> GetList() const;
	TSharedRef<SWidget> MakeEntry(UObject* Item);

	UPROPERTY(Transient)
	TArray<UObject*> ListItems;

	UPROPERTY(BlueprintAssignable, Category = "Events", meta = (DisplayName = "On Item Clicked", AllowPrivateAccess = "true"))
	FSimpleListItemEventDynamic BP_OnItemClicked;

	mutable FSimpleListItemEvent OnItemClickedEvent;
};
