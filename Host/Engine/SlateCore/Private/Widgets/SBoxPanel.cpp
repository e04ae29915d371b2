// Copyright Velmorant. All Rights Reserved.

#include "Widgets/SBoxPanel.h"

#include "HostWidget.h"
#include "Widgets/Images/SImage.h"

namespace SlateBoxPanel
{
	template<typename SlotArgumentsType, typename SlotType>
	void AddAll(const TArray<SlotArgumentsType>& Slots, TPanelChildren<SlotType>& Children)
	{
		for (const SlotArgumentsType& Slot : Slots)
		{
			Children.AddSlot(Slot.GetSlot());
		}
	}
}

FHorizontalBoxSlot::FSlotArguments& FHorizontalBoxSlot::FSlotArguments::Size(FSizeParam::ESizeRule Rule, TAttribute<float> Value)
{
	GetSlot()->SizeParam.SizeRule = Rule;
	GetSlot()->SizeParam.Value = MoveTemp(Value);
	return *this;
}

FVerticalBoxSlot::FSlotArguments& FVerticalBoxSlot::FSlotArguments::MaxHeight(TAttribute<float> InMaxHeight)
{
	GetSlot()->MaxSize = MoveTemp(InMaxHeight);
	return *this;
}

FVerticalBoxSlot::FSlotArguments& FVerticalBoxSlot::FSlotArguments::Size(FSizeParam::ESizeRule Rule, TAttribute<float> Value)
{
	GetSlot()->SizeParam.SizeRule = Rule;
	GetSlot()->SizeParam.Value = MoveTemp(Value);
	return *this;
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	SlateBoxPanel::AddAll(InArgs._Slots, Children);
}

void SHorizontalBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("horizontal");
}

void SHorizontalBox::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.Arrangement = EHostArrangement::Row;
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	SlateBoxPanel::AddAll(InArgs._Slots, Children);
}

void SVerticalBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("vertical");
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	DesiredSizeOverride = InArgs._DesiredSizeOverride;
}

void SImage::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	const FSlateBrush* Brush = Image.Get(nullptr);
	if (Brush != nullptr)
	{
		OutLook.Brush = *Brush;
		OutLook.Width = static_cast<float>(Brush->ImageSize.X);
		OutLook.Height = static_cast<float>(Brush->ImageSize.Y);
	}
	const TOptional<FVector2D> Size = DesiredSizeOverride.Get({});
	if (Size.IsSet())
	{
		OutLook.Width = static_cast<float>(Size->X);
		OutLook.Height = static_cast<float>(Size->Y);
	}
	OutLook.Color = ColorAndOpacity.Get(FSlateColor(FLinearColor::White));
}

void SImage::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("image");
	const FSlateBrush* Brush = Image.Get(nullptr);
	if (Brush && !Brush->GetResourceName().IsNone())
	{
		// The file's name only: where it lies differs from machine to machine.
		FString Name = Brush->GetResourceName().ToString();
		int32 Slash = INDEX_NONE;
		if (Name.FindLastChar(TEXT('/'), Slash))
		{
			Name = Name.RightChop(Slash + 1);
		}
		OutDescription.Notes.Add(Name);
	}
}
