// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Widgets/SCompoundWidget.h"

class ITableRow;

/**
 * What lists and tile views share: rows exist only for the items that show, and are made anew at the tick after a refresh was asked for.
 * Items that come, go or move without one are not seen.
 *
 * Host: the view shows up to HostRowsInView items from the first one in view on, or as many as somebody scrolls to.
 */
class SLATE_API STableViewBase : public SCompoundWidget
{
public:
	static constexpr int32 HostRowsInView = 32;

	/** Brings the rows in step with the items at the next tick; any number of requests until then make one. */
	virtual void RequestListRefresh();

	/** Drops all rows, so that even those of unchanged items are made anew. */
	virtual void RebuildList() = 0;

	virtual FChildren* GetChildren() override { return &Rows; }

	//~ Host: for rows
	void DescribeRowToHost(const SWidget& Row, FHostWidgetDescription& OutDescription) const;
	FHostInputResult GiveRowInput(const SWidget& Row, const FHostInput& Input);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;
	virtual void ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions) override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	static void NoteTileSize(float Width, float Height, FHostWidgetDescription& OutDescription);
	static void NoteTiles(float Width, float Height, FHostWidgetLook& OutLook);

	/** Items that the array of the owner has by now. */
	virtual int32 CountSourceItems() const = 0;
	/** Takes the items from the array of the owner: all else goes by these. */
	virtual void ReadItems() = 0;
	virtual int32 CountItems() const = 0;
	/** The row of an item, reused or made. */
	virtual TSharedRef<ITableRow> MakeRow(int32 ItemIndex) = 0;
	/** Rows of items outside the range are no longer needed. */
	virtual void KeepRows(int32 FirstItem, int32 NumItems) = 0;
	virtual bool IsItemIndexSelected(int32 ItemIndex) const = 0;
	/** What a click on the item's row does. */
	virtual void ClickItem(int32 ItemIndex) = 0;
	/** What the arrow keys do: selects it, and clicks nothing. */
	virtual void MoveToItem(int32 ItemIndex) = 0;
	virtual const TCHAR* GetHostRole() const = 0;

	/** Which item was asked to be scrolled to since the last call; INDEX_NONE for none, or one that is not in the list (any more). */
	virtual int32 TakeScrollTarget() = 0;

private:
	bool HandleTick(float DeltaTime);
	void GenerateRows();
	FHostInputResult ChooseItem(const FString& Shown);
	void Scroll(int32 FirstItem, int32 NumItems);
	FHostInputResult MoveSelection(int32 NumItems);
	bool ClickFirst(TFunctionRef<bool(SWidget&)> IsMeant);
	int32 FindItemOfRow(const SWidget& Row) const;

	TPanelChildren<FSlotBase> Rows;
	int32 FirstItemInView = 0;
	int32 NumRowsInView = HostRowsInView;
	bool bRefreshPending = false;
};
