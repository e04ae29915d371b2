// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

/** A button that opens a menu below it. What the menu holds is asked for each time it opens. */
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _HasDownArrow(true)
		{
		}
		SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboButtonStyle)
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
		SLATE_NAMED_SLOT(FArguments, MenuContent)
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
		SLATE_EVENT(FSimpleDelegate, OnComboBoxOpened)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, HasDownArrow)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	bool IsOpen() const { return bIsOpen; }
	virtual void SetIsOpen(bool bInIsOpen);

	/** The open menu; nothing while it is closed. What stands on the button itself is not among them. */
	virtual FChildren* GetChildren() override { return &OpenMenu; }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;
	virtual void ListHostOptions(TArray<TSharedRef<SWidget>>& OutOptions) override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	virtual void ListPartsForHost(TArray<FHostWidgetPart>& OutParts) override;

	//~ Host: for combo buttons whose menu is a list of options. Negative count: it is none.
	virtual int32 CountOptionsForHost() const { return -1; }
	virtual TSharedRef<SWidget> MakeOptionForHost(int32 Index);
	virtual void PickOptionForHost(int32 Index);

private:
	FHostInputResult ChooseOption(const FString& Shown);

	FOnGetContent OnGetMenuContent;
	FSimpleDelegate OnComboBoxOpened;
	TSharedRef<SWidget> StaticMenuContent = SNullWidget::NullWidget;
	TPanelChildren<FSlotBase> OpenMenu;
	bool bIsOpen = false;
	bool bHasDownArrow = true;
};
