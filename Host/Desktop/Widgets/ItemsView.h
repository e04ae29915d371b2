// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ChildViews.h"

/**
 * The rows of a list, or its tiles, that are in view, with a scroll bar for all of them.
 *
 * Only rows in view exist, here as in the editor: scrolling tells the list from which item on it shows how many. Rows may differ in height;
 * the bar goes by the height of the first.
 */
class FItemsArea : public QAbstractScrollArea
{
public:
	explicit FItemsArea(QWidget* Parent);

	QWidget& GetCanvas() const { return *Canvas; }

	/** @param Tile the size of each; invalid for a list */
	void SetItems(int InNumItems, QSize InTile);
	int GetNumItems() const { return NumItems; }
	/** Of one row, or of a row of tiles. Never 0. */
	int GetRowHeight() const;
	int GetColumns() const;
	/** The items that ought to have rows. */
	int GetFirst() const;
	int GetCount() const;
	/** Where rows from InFirst on are to be put, once they are there. */
	void PutRows(int InFirst);
	void ScrollTo(int Item);

	std::function<void()> OnScrolled;
	std::function<void(int Step)> OnMoved; // by the keyboard, from the row that is selected
	std::function<void()> OnPressed; // by the keyboard, the row that is selected

	/** Within a row of another list, which says what there is: an empty one takes no room then. */
	void SetWithinRow(bool bInWithinRow) { bWithinRow = bInWithinRow; }

	//~ Begin QWidget
	virtual QSize sizeHint() const override;
	virtual QSize minimumSizeHint() const override;

protected:
	virtual void resizeEvent(QResizeEvent* Event) override;
	virtual void paintEvent(QPaintEvent* Event) override;
	virtual void keyPressEvent(QKeyEvent* Event) override;
	virtual void scrollContentsBy(int DeltaX, int DeltaY) override;
	//~ End QWidget

private:
	void FitBar();
	bool IsNothing() const { return bWithinRow && NumItems == 0; }

	QWidget* Canvas;
	QSize Tile;
	int NumItems = 0;
	int MeasuredHeight = 0;
	bool bWithinRow = false;
};

/** A list or tiles. */
class FItemsView : public FWidgetView
{
public:
	FItemsView(IViewHost& InHost, QWidget& Parent);
	virtual ~FItemsView() override;

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	FItemsArea& GetArea() const { return static_cast<FItemsArea&>(GetScreen()); }
	/** Has the list make the rows that are to be seen. */
	void AskForRows(FSeenWidget& Seen);
	void MoveSelection(int Step);
	void PressSelected();

	FSlateLayout* Layout;
	FChildViews Rows;
	int AskedFirst = -1;
	int AskedCount = -1;
	int AskedOf = -1; // so many items
	int KnownFirst = 0; // after the last asking
};

/** A row or a tile: what is in it, on a ground that shows whether it is selected. */
class FItemView : public FWidgetView
{
public:
	FItemView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
	virtual QString NameIt(const FHostWidgetDescription& Description) const override;

private:
	FSlateLayout* Layout;
	FChildViews Content;
};
