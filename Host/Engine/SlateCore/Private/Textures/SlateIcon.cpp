// Copyright Velmorant. All Rights Reserved.

#include "Textures/SlateIcon.h"

#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Styling/StyleDefaults.h"

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName)
	: FSlateIcon(InStyleSetName, InStyleName, FName(*(InStyleName.ToString() + TEXT(".Small"))))
{
}

FSlateIcon::FSlateIcon(const FName& InStyleSetName, const FName& InStyleName, const FName& InSmallStyleName)
	: StyleSetName(InStyleSetName)
	, StyleName(InStyleName)
	, SmallStyleName(InSmallStyleName)
	, bIsSet(true)
{
}

const FSlateBrush* FSlateIcon::GetIcon() const
{
	const ISlateStyle* Style = bIsSet ? FSlateStyleRegistry::FindSlateStyle(StyleSetName) : nullptr;
	return Style ? Style->GetOptionalBrush(StyleName) : FStyleDefaults::GetNoBrush();
}
