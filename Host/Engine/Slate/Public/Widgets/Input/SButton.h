// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/Layout/SBorder.h"

/** Raises OnClicked when it is pressed. Its label is a text, or whatever is put into it. */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ButtonColorAndOpacity(FSlateColor(FLinearColor::White))
		, _IsFocusable(true)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_EVENT(FOnClicked, OnClicked)
		SLATE_EVENT(FSimpleDelegate, OnPressed)
		SLATE_EVENT(FSimpleDelegate, OnReleased)
		SLATE_EVENT(FSimpleDelegate, OnHovered)
		SLATE_EVENT(FSimpleDelegate, OnUnhovered)
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

private:
	FOnClicked OnClicked;
	FSimpleDelegate OnPressed;
	FSimpleDelegate OnReleased;
};
