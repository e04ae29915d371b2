// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/CoreStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/SCompoundWidget.h"

/** An image with a child on it. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush(FName(TEXT("Border"))))
		, _BorderBackgroundColor(FSlateColor(FLinearColor::White))
		, _ColorAndOpacity(FLinearColor::White)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual void SetContent(TSharedRef<SWidget> InContent) { ChildSlot[InContent]; }
	const FSlateBrush* GetBorderImage() const { return BorderImage.Get(nullptr); }
	FSlateColor GetBorderBackgroundColor() const { return BorderBackgroundColor.Get(FSlateColor(FLinearColor::White)); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;

private:
	TAttribute<const FSlateBrush*> BorderImage;
	TAttribute<FSlateColor> BorderBackgroundColor;
};
