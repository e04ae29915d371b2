// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "Types/SlateEnums.h"
#include "Widgets/SNullWidget.h"

class SWidget;

/** One place in a panel: the widget in it and how it lies there. */
class SLATECORE_API FSlotBase
{
public:
	FSlotBase() = default;
	virtual ~FSlotBase() = default;

	const TSharedRef<SWidget>& GetWidget() const { return Widget; }
	void AttachWidget(const TSharedRef<SWidget>& InWidget) { Widget = InWidget; }

	const FMargin GetPadding() const { return SlotPadding.Get(); }
	void SetPadding(TAttribute<FMargin> InPadding) { SlotPadding = MoveTemp(InPadding); }
	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }
	void SetHorizontalAlignment(EHorizontalAlignment InAlignment) { HorizontalAlignment = InAlignment; }
	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }
	void SetVerticalAlignment(EVerticalAlignment InAlignment) { VerticalAlignment = InAlignment; }

private:
	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
	TAttribute<FMargin> SlotPadding = FMargin(0.0f);
	EHorizontalAlignment HorizontalAlignment = HAlign_Fill;
	EVerticalAlignment VerticalAlignment = VAlign_Fill;
};

/**
 * What `SPanel::Slot()` returns: configures a slot that is added to its panel when the expression is handed over.
 * Modifiers return the derived type, so that they chain in any order.
 */
template<typename SlotType, typename ArgumentsType>
class TSlotArguments
{
public:
	TSlotArguments()
		: NewSlot(MakeShared<SlotType>())
	{
	}

	ArgumentsType& operator[](const TSharedRef<SWidget>& InChild)
	{
		NewSlot->AttachWidget(InChild);
		return Me();
	}

	ArgumentsType& Padding(TAttribute<FMargin> InPadding)
	{
		NewSlot->SetPadding(MoveTemp(InPadding));
		return Me();
	}
	ArgumentsType& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }

	ArgumentsType& VAlign(EVerticalAlignment InAlignment)
	{
		NewSlot->SetVerticalAlignment(InAlignment);
		return Me();
	}

	/** Hands out the slot itself; good for as long as the slot stays in its panel. */
	ArgumentsType& Expose(SlotType*& OutSlot)
	{
		OutSlot = &NewSlot.Get();
		return Me();
	}

	const TSharedRef<SlotType>& GetSlot() const { return NewSlot; }

private:
	ArgumentsType& Me() { return static_cast<ArgumentsType&>(*this); }

	TSharedRef<SlotType> NewSlot;
};
