// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/Views/SListView.h"

/** A list whose items lie side by side as tiles of one size. */
template<typename ItemType>
class STileView : public SListView<ItemType>
{
public:
	typedef typename SListView<ItemType>::NullableItemType NullableItemType;
	typedef typename SListView<ItemType>::FOnGenerateRow FOnGenerateRow;
	typedef typename SListView<ItemType>::FOnSelectionChanged FOnSelectionChanged;
	typedef typename SListView<ItemType>::FOnMouseButtonClick FOnMouseButtonClick;

	SLATE_BEGIN_ARGS(STileView<ItemType>)
		: _ListItemsSource(nullptr)
		, _ItemHeight(128.0f)
		, _ItemWidth(128.0f)
		, _SelectionMode(ESelectionMode::Multi)
		, _ClearSelectionOnClick(true)
		{
		}
		SLATE_EVENT(FOnGenerateRow, OnGenerateTile)
		SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnMouseButtonClick, OnMouseButtonClick)
		SLATE_ATTRIBUTE(float, ItemHeight)
		SLATE_ATTRIBUTE(float, ItemWidth)
		SLATE_ATTRIBUTE(ESelectionMode::Type, SelectionMode)
		SLATE_ARGUMENT(bool, ClearSelectionOnClick)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs)
	{
		ItemWidth = InArgs._ItemWidth;
		ItemHeight = InArgs._ItemHeight;
		SListView<ItemType>::Construct(typename SListView<ItemType>::FArguments()
										   .OnGenerateRow(InArgs._OnGenerateTile)
										   .ListItemsSource(InArgs._ListItemsSource)
										   .OnSelectionChanged(InArgs._OnSelectionChanged)
										   .OnMouseButtonClick(InArgs._OnMouseButtonClick)
										   .SelectionMode(InArgs._SelectionMode)
										   .ClearSelectionOnClick(InArgs._ClearSelectionOnClick));
	}

protected:
	virtual const TCHAR* GetHostRole() const override { return TEXT("tiles"); }
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override
	{
		SListView<ItemType>::DescribeToHost(OutDescription);
		this->NoteTileSize(ItemWidth.Get(), ItemHeight.Get(), OutDescription);
	}
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override
	{
		SListView<ItemType>::DescribeLookToHost(OutLook);
		this->NoteTiles(ItemWidth.Get(), ItemHeight.Get(), OutLook);
	}

private:
	TAttribute<float> ItemWidth; // Slate units
	TAttribute<float> ItemHeight;
};
