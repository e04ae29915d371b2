// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Misc/Optional.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"

/** How the parts of a widget lie to one another. */
enum class EHostArrangement : uint8
{
	Row,
	Column,
};

/** What of a widget a part is. */
enum class EHostPart : uint8
{
	Content, // one of its children, or what stands on it
	Menu, // what is open below it
	RowName, // the three columns of a line of a details panel
	RowValue,
	RowExtension,
	RowBelow, // a line that belongs to it
};

/** A widget within another, and how it lies there. Sizes in Slate units. */
struct FHostWidgetPart
{
	TSharedRef<SWidget> Widget;
	EHostPart Kind = EHostPart::Content;
	FMargin Padding;
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Fill;
	/** Its share of the room that is left along the arrangement; unset: as much as it asks for. */
	TOptional<float> Fill;
	/** Along the arrangement; 0 for no limit. */
	float MaxSize = 0.0f;

	/** The slot's padding and alignment, and the size of a slot of a box. */
	static FHostWidgetPart FromSlot(const FSlotBase& Slot, EHostPart Kind = EHostPart::Content);
};

/**
 * How one widget is drawn: what a program with a window needs beyond its description. Sizes in Slate units; unset means that the widget
 * asks for nothing. Brushes are copies, because their widget may let them go.
 */
struct FHostWidgetLook
{
	EHostArrangement Arrangement = EHostArrangement::Column;

	TOptional<float> Width;
	TOptional<float> Height;
	TOptional<float> MinWidth;
	TOptional<float> MinHeight;
	TOptional<float> MaxWidth;
	TOptional<float> MaxHeight;

	/** An image or an icon; beside a label, it stands before it. */
	TOptional<FSlateBrush> Brush;
	/** Of a text, or of an image in place of its own tint. */
	FSlateColor Color = FSlateColor::UseForeground();
	FSlateFontInfo Font;
	EHorizontalAlignment TextAlignment = HAlign_Left;
	bool bWrapsText = false;

	/** What an empty field says it is for. */
	FString Hint;

	/** Stays pressed: Selected tells whether it is. */
	bool bToggle = false;
	/** Of a button that opens something. */
	bool bHasDownArrow = true;
	bool bOpen = false;

	/** Of a list: all items, and the first of those that have rows. Tiles have a size of their own. */
	int32 NumItems = 0;
	int32 FirstItem = 0;
	bool bTiles = false;

	/** 0 does not show at all. */
	float Opacity = 1.0f;
	/** Does not even take room. */
	bool bCollapsed = false;
};
