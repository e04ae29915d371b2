// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Misc/Optional.h"
#include "Styling/SlateTypes.h"
#include "Widgets/SCompoundWidget.h"

/** A box to tick, with whatever is put beside it as its label; as a toggle button, a button that shows whether it is pressed. */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _IsChecked(ECheckBoxState::Unchecked)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FCheckBoxStyle, Style)
		SLATE_ARGUMENT(TOptional<ESlateCheckBoxType::Type>, Type)
		SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
		SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
		SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }
	ECheckBoxState GetCheckedState() const { return IsCheckboxChecked.Get(ECheckBoxState::Unchecked); }
	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	void SetIsChecked(TAttribute<ECheckBoxState> InIsChecked) { IsCheckboxChecked = MoveTemp(InIsChecked); }

	/** What a click does: anything but checked becomes checked, then the handler runs. A bound state is left to its owner. */
	void ToggleCheckedState();

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

private:
	bool IsToggleButton() const { return Type == ESlateCheckBoxType::ToggleButton; }

	ESlateCheckBoxType::Type Type = ESlateCheckBoxType::CheckBox;
	TAttribute<ECheckBoxState> IsCheckboxChecked;
	FOnCheckStateChanged OnCheckStateChanged;
};
