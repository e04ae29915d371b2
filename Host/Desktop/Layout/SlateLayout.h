// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostWidgetLook.h"

#include <vector>

/** How a widget lies in its place: what a slot says, in Qt's pixels. */
struct FSlotGeometry
{
	QMargins Padding;
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Fill;
	double Fill = -1.0; // the share of what is left; negative: as much as the widget asks for
	int MaxSize = 0; // along the direction; 0 for no limit

	bool Fills() const { return Fill >= 0.0; }
	bool operator==(const FSlotGeometry&) const = default;

	static FSlotGeometry Of(const FHostWidgetPart& Part);
};

/** What a size box asks for, in pixels; negative: nothing. */
struct FSizeOverrides
{
	int Width = -1;
	int Height = -1;
	int MinWidth = -1;
	int MinHeight = -1;
	int MaxWidth = -1;
	int MaxHeight = -1;

	bool operator==(const FSizeOverrides&) const = default;

	static FSizeOverrides Of(const FHostWidgetLook& Look);
	QSize Apply(QSize Wanted) const;
};

/**
 * Lays widgets out in a row or a column as the editor's box panels do: some take what they ask for, others share what is left, and each is
 * aligned within its place.
 *
 * Where there is too little room, those that fill give way first, then all others in proportion, down to the least they can do with.
 * Hidden widgets take no room. The widgets belong to the parent.
 */
class FSlateLayout : public QLayout
{
public:
	explicit FSlateLayout(Qt::Orientation InDirection, QWidget* Parent = nullptr);
	virtual ~FSlateLayout() override;

	void SetDirection(Qt::Orientation InDirection);
	void SetOverrides(const FSizeOverrides& InOverrides);
	/** Places of one size side by side, and those that do not fit below; invalid for none. */
	void SetTile(QSize InTile);
	bool IsTiled() const { return Tile.isValid(); }

	void Add(QWidget* Widget, const FSlotGeometry& Slot);
	/** Of the widget at that place. */
	void SetSlot(int Index, const FSlotGeometry& Slot);
	/** Puts another widget there; the one before is let go. */
	void Replace(int Index, QWidget* Widget);
	void RemoveAt(int Index);

	//~ Begin QLayout
	virtual void addItem(QLayoutItem* Item) override;
	virtual QLayoutItem* itemAt(int Index) const override;
	virtual QLayoutItem* takeAt(int Index) override;
	virtual int count() const override;
	virtual QSize sizeHint() const override;
	virtual QSize minimumSize() const override;
	virtual Qt::Orientations expandingDirections() const override { return Qt::Orientations(); }
	virtual bool hasHeightForWidth() const override;
	virtual int heightForWidth(int Width) const override;
	virtual int minimumHeightForWidth(int Width) const override;
	virtual void setGeometry(const QRect& Rect) override;
	virtual void invalidate() override;
	//~ End QLayout

private:
	struct FPlace
	{
		QLayoutItem* Item = nullptr;
		FSlotGeometry Slot;
	};
	enum class EWant
	{
		Hint,
		Least,
	};

	bool IsRow() const { return Direction == Qt::Horizontal; }
	int Along(QSize Size) const { return IsRow() ? Size.width() : Size.height(); }
	int Across(QSize Size) const { return IsRow() ? Size.height() : Size.width(); }
	QSize Make(int Along, int Across) const { return IsRow() ? QSize(Along, Across) : QSize(Across, Along); }
	QSize Sum(EWant Want) const;
	QSize WantOf(const FPlace& Place, EWant Want, int Width) const;
	/** Lengths of all places along the direction, paddings included. */
	std::vector<int> Share(int Room, int Width) const;
	int HeightFor(int Width, EWant Want) const;
	void PutInto(const FPlace& Place, const QRect& Rect) const;

	Qt::Orientation Direction;
	FSizeOverrides Overrides;
	QSize Tile;
	std::vector<FPlace> Places;
	mutable QSize KnownHint; // invalid until asked for
	mutable QSize KnownLeast;
};
