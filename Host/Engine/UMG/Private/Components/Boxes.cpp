// Copyright Velmorant. All Rights Reserved.

#include "Components/HorizontalBox.h"
#include "Components/HorizontalBoxSlot.h"
#include "Components/SizeBox.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

#include <type_traits>

namespace UMGBoxes
{
	template<typename SlateSlotType, typename SlotType>
	void ApplySlot(SlateSlotType& Slate, const SlotType& Slot)
	{
		Slate.SetPadding(Slot.Padding);
		Slate.SetHorizontalAlignment(Slot.HorizontalAlignment);
		Slate.SetVerticalAlignment(Slot.VerticalAlignment);
		Slate.SizeParam.SizeRule = Slot.Size.SizeRule == ESlateSizeRule::Fill ? FSizeParam::SizeRule_Stretch : FSizeParam::SizeRule_Auto;
		Slate.SizeParam.Value = Slot.Size.Value;
	}

	/** The Slate box of a panel that is shown gets the panel's children anew. A slot that says nothing is as high or wide as its child. */
	template<typename BoxType>
	void FillBox(BoxType& Box, const UPanelWidget& Panel)
	{
		using FSlateSlot = typename BoxType::FSlot;
		using FBoxSlot = std::conditional_t<std::is_same_v<BoxType, SHorizontalBox>, UHorizontalBoxSlot, UVerticalBoxSlot>;
		Box.ClearChildren();
		for (UWidget* Child : Panel.GetAllChildren())
		{
			FSlateSlot* Slate = nullptr;
			Box.AddSlot().Expose(Slate)[Child->TakeWidget()];
			Slate->SizeParam.SizeRule = FSizeParam::SizeRule_Auto;
			if (const FBoxSlot* Slot = Cast<FBoxSlot>(Child->Slot))
			{
				ApplySlot(*Slate, *Slot);
			}
		}
	}

	template<typename BoxType>
	TSharedRef<SWidget> MakeBox(const UPanelWidget& Panel)
	{
		const TSharedRef<BoxType> Box = SNew(BoxType);
		FillBox(*Box, Panel);
		return Box;
	}

	template<typename BoxType>
	void Refresh(const TWeakPtr<SWidget>& Widget, const UPanelWidget& Panel)
	{
		if (const TSharedPtr<SWidget> Box = Widget.Pin())
		{
			FillBox(static_cast<BoxType&>(*Box), Panel);
		}
	}
}

TSharedRef<SWidget> UVerticalBox::RebuildWidget()
{
	return UMGBoxes::MakeBox<SVerticalBox>(*this);
}

void UVerticalBox::RefreshChildren()
{
	UMGBoxes::Refresh<SVerticalBox>(MyWidget, *this);
}

UClass* UVerticalBox::GetSlotClass() const
{
	return UVerticalBoxSlot::StaticClass();
}

TSharedRef<SWidget> UHorizontalBox::RebuildWidget()
{
	return UMGBoxes::MakeBox<SHorizontalBox>(*this);
}

void UHorizontalBox::RefreshChildren()
{
	UMGBoxes::Refresh<SHorizontalBox>(MyWidget, *this);
}

UClass* UHorizontalBox::GetSlotClass() const
{
	return UHorizontalBoxSlot::StaticClass();
}

TSharedRef<SWidget> USizeBox::RebuildWidget()
{
	return SNew(SBox)[TakeContent()];
}

void USizeBox::RefreshChildren()
{
	if (const TSharedPtr<SBox> Box = GetBox())
	{
		Box->SetContent(TakeContent());
	}
}

TSharedPtr<SBox> USizeBox::GetBox() const
{
	return StaticCastSharedPtr<SBox>(MyWidget.Pin());
}

void USizeBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<SBox> Box = GetBox())
	{
		Box->SetMinDesiredHeight(bOverride_MinDesiredHeight ? FOptionalSize(MinDesiredHeight) : FOptionalSize());
	}
}

void USizeBox::SetMinDesiredHeight(float InMinDesiredHeight)
{
	bOverride_MinDesiredHeight = true;
	MinDesiredHeight = InMinDesiredHeight;
	SynchronizeProperties();
}
