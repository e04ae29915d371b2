// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SLeafWidget.h"

/** Shows a text. */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _TextStyle(nullptr)
		, _AutoWrapText(false)
		{
		}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(FText, HighlightText)
		SLATE_ATTRIBUTE(bool, AutoWrapText)
		SLATE_ATTRIBUTE(FMargin, Margin)
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const;
	void SetText(TAttribute<FText> InText) { Text = MoveTemp(InText); }
	void SetFont(TAttribute<FSlateFontInfo> InFont) { Font = MoveTemp(InFont); }
	FSlateFontInfo GetFont() const { return Font.Get(FSlateFontInfo()); }
	void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity) { ColorAndOpacity = MoveTemp(InColorAndOpacity); }
	void SetAutoWrapText(TAttribute<bool> InAutoWrapText) { AutoWrapText = MoveTemp(InAutoWrapText); }
	FSlateColor GetColorAndOpacity() const { return ColorAndOpacity.Get(FSlateColor::UseForeground()); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;

private:
	TAttribute<FText> Text;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<bool> AutoWrapText;
	TAttribute<ETextJustify::Type> Justification;
	TAttribute<float> MinDesiredWidth;
	mutable FText LastText; // what GetText() refers to
};
