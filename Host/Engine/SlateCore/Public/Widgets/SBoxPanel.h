// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/SPanel.h"

/** How much room a slot takes along its panel's direction. */
struct FSizeParam
{
	enum ESizeRule
	{
		SizeRule_Auto,
		SizeRule_Stretch,
		SizeRule_StretchContent,
	};

	ESizeRule SizeRule = SizeRule_Stretch;
	TAttribute<float> Value = 1.0f;
};

/** One place in a horizontal or vertical box. Without a sizing call it fills, with coefficient 1. */
class SLATECORE_API FBoxPanelSlot : public FSlotBase
{
public:
	FSizeParam SizeParam;
	TAttribute<float> MaxSize = 0.0f; // 0: no limit
};

/** Children in a row or a column. */
template<typename SlotType>
class TBoxPanel : public SPanel
{
public:
	typedef SlotType FSlot;

	/** A slot that joins its panel at the end of the expression in which AddSlot() was called. */
	class FScopedWidgetSlotArguments : public SlotType::FSlotArguments
	{
	public:
		FScopedWidgetSlotArguments(TPanelChildren<SlotType>& InChildren, int32 InIndex)
			: Children(InChildren)
			, Index(InIndex)
		{
		}
		~FScopedWidgetSlotArguments() { Children.AddSlot(this->GetSlot(), Index); }

		FScopedWidgetSlotArguments(const FScopedWidgetSlotArguments&) = delete;
		FScopedWidgetSlotArguments& operator=(const FScopedWidgetSlotArguments&) = delete;

	private:
		TPanelChildren<SlotType>& Children;
		int32 Index;
	};

	static typename SlotType::FSlotArguments Slot() { return typename SlotType::FSlotArguments(); }

	/** Index INDEX_NONE appends. */
	FScopedWidgetSlotArguments AddSlot(int32 Index = INDEX_NONE) { return FScopedWidgetSlotArguments(Children, Index); }

	void ClearChildren() { Children.Empty(); }

	virtual FChildren* GetChildren() override { return &Children; }

protected:
	TPanelChildren<SlotType> Children;
};

/** One place in a horizontal box. */
class SLATECORE_API FHorizontalBoxSlot : public FBoxPanelSlot
{
public:
	struct FSlotArguments : public TSlotArguments<FHorizontalBoxSlot, FSlotArguments>
	{
		FSlotArguments& AutoWidth() { return Size(FSizeParam::SizeRule_Auto, 0.0f); }
		FSlotArguments& FillWidth(TAttribute<float> InCoefficient) { return Size(FSizeParam::SizeRule_Stretch, MoveTemp(InCoefficient)); }

	private:
		FSlotArguments& Size(FSizeParam::ESizeRule Rule, TAttribute<float> Value);
	};
};

/** One place in a vertical box. */
class SLATECORE_API FVerticalBoxSlot : public FBoxPanelSlot
{
public:
	struct FSlotArguments : public TSlotArguments<FVerticalBoxSlot, FSlotArguments>
	{
		FSlotArguments& AutoHeight() { return Size(FSizeParam::SizeRule_Auto, 0.0f); }
		FSlotArguments& MaxHeight(TAttribute<float> InMaxHeight);

	private:
		FSlotArguments& Size(FSizeParam::ESizeRule Rule, TAttribute<float> Value);
	};
};

class SLATECORE_API SHorizontalBox : public TBoxPanel<FHorizontalBoxSlot>
{
public:
	SLATE_BEGIN_ARGS(SHorizontalBox)
		{
		}
		SLATE_SLOT_ARGUMENT(FHorizontalBoxSlot, Slots)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
};

class SLATECORE_API SVerticalBox : public TBoxPanel<FVerticalBoxSlot>
{
public:
	SLATE_BEGIN_ARGS(SVerticalBox)
		{
		}
		SLATE_SLOT_ARGUMENT(FVerticalBoxSlot, Slots)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
};
