// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/ArrayView.h"
#include "Framework/Views/ITypedTableView.h"
#include "Misc/Optional.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

/** Shows the items of an array that its owner keeps alive and in place. Items compare with ==; the default value is no item. */
template<typename ItemType>
class SListView : public STableViewBase, public ITypedTableView<ItemType>
{
public:
	typedef ItemType NullableItemType;
	typedef typename TSlateDelegates<ItemType>::FOnGenerateRow FOnGenerateRow;
	typedef typename TSlateDelegates<NullableItemType>::FOnSelectionChanged FOnSelectionChanged;
	typedef typename TSlateDelegates<ItemType>::FOnMouseButtonClick FOnMouseButtonClick;

	SLATE_BEGIN_ARGS(SListView<ItemType>)
		: _ListItemsSource(nullptr)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		{
		}
		SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
		SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
		SLATE_ATTRIBUTE(ESelectionMode::Type, SelectionMode)
		SLATE_ARGUMENT(bool, ClearSelectionOnClick)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		OnGenerateRow = InArgs._OnGenerateRow;
		OnSelectionChanged = InArgs._OnSelectionChanged;
		OnMouseButtonClick = InArgs._OnMouseButtonClick;
		SelectionMode = InArgs._SelectionMode;
		ItemsSource = InArgs._ListItemsSource;
		RequestListRefresh();
	}

	/** Takes another array; selection and rows start anew. The array that is shown already changes nothing: see RequestListRefresh(). */
	void SetItemsSource(const TArray<ItemType>* InListItemsSource)
	{
		if (ItemsSource != InListItemsSource)
		{
			ItemsSource = InListItemsSource;
			SelectedItems.Empty();
			RebuildList();
		}
	}
	void ClearItemsSource() { SetItemsSource(nullptr); }
	bool HasValidItemsSource() const { return ItemsSource != nullptr; }
	TArrayView<const ItemType> GetItems() const { return ItemsSource ? TArrayView<const ItemType>(*ItemsSource) : TArrayView<const ItemType>(); }

	virtual void RebuildList() override
	{
		RowsByItem.Empty();
		RequestListRefresh();
	}

	/** Makes the item the only selected one. Raises OnSelectionChanged, also when nothing changes. */
	void SetSelection(ItemType SoleSelectedItem, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		SelectedItems.Empty();
		SetItemSelection(SoleSelectedItem, true, SelectInfo);
	}

	void SetItemSelection(const ItemType& InItem, bool bSelected, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
	{
		if (SelectionMode.Get(ESelectionMode::Multi) == ESelectionMode::None)
		{
			return;
		}
		SelectedItems.Remove(InItem);
		if (bSelected)
		{
			SelectedItems.Add(InItem);
		}
		OnSelectionChanged.ExecuteIfBound(bSelected ? InItem : NullableItemType(), SelectInfo);
	}

	/** Raises OnSelectionChanged with no item, if there was a selection. */
	void ClearSelection()
	{
		if (SelectedItems.Num() > 0)
		{
			SelectedItems.Empty();
			OnSelectionChanged.ExecuteIfBound(NullableItemType(), ESelectInfo::Direct);
		}
	}

	bool IsItemSelected(const ItemType& InItem) const { return SelectedItems.Contains(InItem); }
	TArray<ItemType> GetSelectedItems() const { return SelectedItems; }
	int32 GetNumItemsSelected() const { return SelectedItems.Num(); }

	/** At the next tick. An item that is not in the list then is ignored. */
	void RequestScrollIntoView(ItemType ItemToView, const uint32 = 0)
	{
		ItemToScrollTo = ItemToView;
		RequestListRefresh();
	}

protected:
	virtual int32 CountSourceItems() const override { return GetItems().Num(); }
	virtual void ReadItems() override { ShownItems = ItemsSource ? *ItemsSource : TArray<ItemType>(); }
	virtual int32 CountItems() const override { return ShownItems.Num(); }
	virtual const TCHAR* GetHostRole() const override { return TEXT("list"); }
	virtual int32 TakeScrollTarget() override
	{
		const int32 Index = ItemToScrollTo.IsSet() ? ShownItems.Find(ItemToScrollTo.GetValue()) : INDEX_NONE;
		ItemToScrollTo.Reset();
		return Index;
	}
	virtual bool IsItemIndexSelected(int32 ItemIndex) const override { return IsItemSelected(ShownItems[ItemIndex]); }

	virtual TSharedRef<ITableRow> MakeRow(int32 ItemIndex) override
	{
		const ItemType Item = ShownItems[ItemIndex];
		if (const TSharedRef<ITableRow>* Row = RowsByItem.Find(Item))
		{
			return *Row;
		}
		const TSharedRef<ITableRow> NewRow = OnGenerateRow.Execute(Item, StaticCastSharedRef<STableViewBase>(this->AsShared()));
		RowsByItem.Add(Item, NewRow);
		return NewRow;
	}

	virtual void KeepRows(int32 FirstItem, int32 NumItems) override
	{
		DropSelectionOfMissingItems();
		TMap<ItemType, TSharedRef<ITableRow>> Kept;
		for (int32 Index = FirstItem; Index < FirstItem + NumItems; ++Index)
		{
			const ItemType Item = ShownItems[Index];
			if (const TSharedRef<ITableRow>* Row = RowsByItem.Find(Item))
			{
				const TSharedRef<ITableRow> Keep = *Row;
				Kept.Add(Item, Keep);
			}
		}
		RowsByItem = MoveTemp(Kept);
	}

	virtual void ClickItem(int32 ItemIndex) override
	{
		const ItemType Item = ShownItems[ItemIndex]; // a copy: handlers may change the list
		const bool bToggleOff = SelectionMode.Get(ESelectionMode::Multi) == ESelectionMode::SingleToggle && IsItemSelected(Item);
		if (bToggleOff)
		{
			SetItemSelection(Item, false, ESelectInfo::OnMouseClick);
		}
		else if (!IsItemSelected(Item) || SelectedItems.Num() > 1)
		{
			SetSelection(Item, ESelectInfo::OnMouseClick);
		}
		OnMouseButtonClick.ExecuteIfBound(Item);
	}

	virtual void MoveToItem(int32 ItemIndex) override
	{
		const ItemType Item = ShownItems[ItemIndex];
		SetSelection(Item, ESelectInfo::OnNavigation);
	}

	FOnGenerateRow OnGenerateRow;

private:
	/** Items that left the array cannot stay selected; whoever listens is told once. */
	void DropSelectionOfMissingItems()
	{
		const int32 NumGone = SelectedItems.RemoveAll([this](const ItemType& Item) { return !ShownItems.Contains(Item); });
		if (NumGone > 0)
		{
			OnSelectionChanged.ExecuteIfBound(NullableItemType(), ESelectInfo::Direct);
		}
	}

	const TArray<ItemType>* ItemsSource = nullptr;
	TArray<ItemType> ShownItems; // what was in it at the last refresh
	TArray<ItemType> SelectedItems; // in order of selection
	TOptional<ItemType> ItemToScrollTo; // until the next tick
	TMap<ItemType, TSharedRef<ITableRow>> RowsByItem; // of the items in view
	TAttribute<ESelectionMode::Type> SelectionMode;
	FOnSelectionChanged OnSelectionChanged;
	FOnMouseButtonClick OnMouseButtonClick;
};
