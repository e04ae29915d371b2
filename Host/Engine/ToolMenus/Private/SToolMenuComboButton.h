// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Input/SComboButton.h"

/** An entry that opens a menu. Its tag is the entry's name. */
class SToolMenuComboButton : public SComboButton
{
public:
	SLATE_BEGIN_ARGS(SToolMenuComboButton)
		: _ShowsLabel(true)
		{
		}
		SLATE_ATTRIBUTE(FText, Label)
		SLATE_ATTRIBUTE(FSlateIcon, Icon)
		SLATE_ARGUMENT(bool, ShowsLabel)
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;

private:
	TAttribute<FText> Label;
	TAttribute<FSlateIcon> Icon;
	bool bShowsLabel = true;
};
