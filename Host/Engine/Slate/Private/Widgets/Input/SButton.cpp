// Copyright Velmorant. All Rights Reserved.

#include "Widgets/Input/SButton.h"

#include "HostWidget.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

namespace SlateButton
{
	TSharedRef<SWidget> MakeContent(const SButton::FArguments& InArgs)
	{
		if (InArgs._Content.Widget != SNullWidget::NullWidget || !InArgs._Text.IsSet())
		{
			return InArgs._Content.Widget;
		}
		return SNew(STextBlock).Text(InArgs._Text);
	}
}

void SButton::Construct(const FArguments& InArgs)
{
	OnClicked = InArgs._OnClicked;
	OnPressed = InArgs._OnPressed;
	OnReleased = InArgs._OnReleased;
	SBorder::Construct(SBorder::FArguments()
						   .HAlign(InArgs._HAlign)
						   .VAlign(InArgs._VAlign)
						   .Padding(InArgs._ContentPadding)
						   .BorderBackgroundColor(InArgs._ButtonColorAndOpacity)[SlateButton::MakeContent(InArgs)]);
}

void SButton::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = TEXT("button");
	OutDescription.Label = FHostWidgetAccess::TextOf(*ChildSlot.GetWidget());
	OutDescription.bSealed = true;
}

FHostInputResult SButton::TakeHostInput(const FHostInput& Input)
{
	if (Input.Kind != EHostInput::Click)
	{
		return SBorder::TakeHostInput(Input);
	}
	OnPressed.ExecuteIfBound();
	OnReleased.ExecuteIfBound();
	if (OnClicked.IsBound())
	{
		const FOnClicked HeldWhileHandling = OnClicked; // the handler may put another one in its place
		HeldWhileHandling.Execute();
	}
	return FHostInputResult::Done();
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	Type = InArgs._Type.Get(ESlateCheckBoxType::CheckBox);
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	ChildSlot[InArgs._Content.Widget];
}

void SCheckBox::ToggleCheckedState()
{
	const ECheckBoxState NewState = IsChecked() ? ECheckBoxState::Unchecked : ECheckBoxState::Checked;
	if (!IsCheckboxChecked.IsBound())
	{
		IsCheckboxChecked = NewState;
	}
	OnCheckStateChanged.ExecuteIfBound(NewState);
}

void SCheckBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	OutDescription.Role = IsToggleButton() ? TEXT("button") : TEXT("checkbox");
	OutDescription.Label = FHostWidgetAccess::TextOf(*ChildSlot.GetWidget());
	OutDescription.bSealed = true;
	if (IsToggleButton())
	{
		OutDescription.bSelected = IsChecked();
	}
	else
	{
		OutDescription.Checked = GetCheckedState();
	}
}

void SCheckBox::DescribeLookToHost(FHostWidgetLook& OutLook) const
{
	OutLook.bToggle = IsToggleButton();
}

FHostInputResult SCheckBox::TakeHostInput(const FHostInput& Input)
{
	const bool bCheck = Input.Kind == EHostInput::Check && !IsToggleButton();
	if (Input.Kind == EHostInput::Click || (bCheck && Input.bOn != IsChecked()))
	{
		ToggleCheckedState();
		return FHostInputResult::Done();
	}
	return bCheck ? FHostInputResult::Done() : SCompoundWidget::TakeHostInput(Input);
}
