// Copyright Velmorant. All Rights Reserved.

#include "SToolMenuComboButton.h"

#include "HostMenus.h"
#include "HostWidget.h"

void SToolMenuComboButton::Construct(const FArguments& InArgs)
{
	Label = InArgs._Label;
	Icon = InArgs._Icon;
	bShowsLabel = InArgs._ShowsLabel;
	SComboButton::Construct(SComboButton::FArguments().OnGetMenuContent(InArgs._OnGetMenuContent));
}

void SToolMenuComboButton::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	SComboButton::DescribeToHost(OutDescription);
	OutDescription.Label = bShowsLabel ? Label.Get(FText::GetEmpty()).ToString() : FString();
	const FString IconFact = HostMenus::DescribeIcon(Icon.Get(FSlateIcon()));
	if (!IconFact.IsEmpty())
	{
		OutDescription.Notes.Add(IconFact);
	}
}

void SToolMenuComboButton::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	SComboButton::DescribeLookToHost(OutLook);
	OutLook.Brush = HostMenus::FindBrush(Icon.Get(FSlateIcon()));
}
