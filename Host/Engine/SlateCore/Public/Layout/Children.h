// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"

class SWidget;

/** The children of a widget, in the order in which they lie. */
class SLATECORE_API FChildren
{
public:
	virtual ~FChildren() = default;

	virtual int32 Num() const = 0;
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) = 0;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const = 0;
};

class SLATECORE_API FNoChildren : public FChildren
{
public:
	virtual int32 Num() const override { return 0; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override;
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override;

	static FNoChildren NoChildrenInstance;
};

/** The one child of a compound widget. */
class SLATECORE_API FSingleWidgetChildrenWithBasicLayoutSlot : public FChildren, public FSlotBase
{
public:
	virtual int32 Num() const override { return 1; }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override;
	virtual const FSlotBase& GetSlotAt(int32) const override { return *this; }

	FSingleWidgetChildrenWithBasicLayoutSlot& operator[](const TSharedRef<SWidget>& InChild)
	{
		AttachWidget(InChild);
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(TAttribute<FMargin> InPadding)
	{
		SetPadding(MoveTemp(InPadding));
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
	FSingleWidgetChildrenWithBasicLayoutSlot& HAlign(EHorizontalAlignment InAlignment)
	{
		SetHorizontalAlignment(InAlignment);
		return *this;
	}
	FSingleWidgetChildrenWithBasicLayoutSlot& VAlign(EVerticalAlignment InAlignment)
	{
		SetVerticalAlignment(InAlignment);
		return *this;
	}
};

/** The slots of a panel. */
template<typename SlotType>
class TPanelChildren : public FChildren
{
public:
	virtual int32 Num() const override { return Slots.Num(); }
	virtual TSharedRef<SWidget> GetChildAt(int32 Index) override { return Slots[Index]->GetWidget(); }
	virtual const FSlotBase& GetSlotAt(int32 ChildIndex) const override { return *Slots[ChildIndex]; }

	SlotType& operator[](int32 Index) { return *Slots[Index]; }

	/** Index INDEX_NONE appends. */
	void AddSlot(const TSharedRef<SlotType>& Slot, int32 Index = INDEX_NONE)
	{
		Slots.Insert(Slot, Index == INDEX_NONE ? Slots.Num() : Index);
	}
	void Empty() { Slots.Empty(); }

private:
	TArray<TSharedRef<SlotType>> Slots;
};
