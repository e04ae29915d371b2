// Copyright Velmorant. All Rights Reserved.

#include "VlmButton.h"

#include "Framework/SlateDelegates.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Text/STextBlock.h"

TSharedRef<SWidget> UVlmButton::RebuildWidget()
{
	// A toggle button, so that the selection shows; what a click does to it is decided here.
	// clang-format off
	return SNew(SCheckBox)
		.Type(ESlateCheckBoxType::ToggleButton)
		.IsChecked(TAttribute<ECheckBoxState>::CreateUObject(this, &UVlmButton::GetCheckState))
		.OnCheckStateChanged(FOnCheckStateChanged::CreateUObject(this, &UVlmButton::HandleClicked))
		[
			SNew(STextBlock)
			.Text(TAttribute<FText>::CreateUObject(this, &UVlmButton::GetLabel))
		];
	// clang-format on
}

void UVlmButton::SetLabel(const FText& InLabel)
{
	Label = InLabel;
}

void UVlmButton::SetSelectionState(bool bInSelected, bool bBroadcast)
{
	if (bSelected == bInSelected)
	{
		return;
	}
	bSelected = bInSelected;
	if (bBroadcast)
	{
		OnSelectionStateChanged.Broadcast(this, bSelected);
	}
}

ECheckBoxState UVlmButton::GetCheckState() const
{
	return bSelected ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

void UVlmButton::HandleClicked(ECheckBoxState)
{
	if (bSelectable)
	{
		SetSelectionState(!bSelected, true);
	}
	OnButtonClicked.Broadcast(ButtonID);
}
