// Copyright Velmorant. All Rights Reserved.

#include "VlmButton.h"

#include "Framework/SlateDelegates.h"
#include "Widgets/Input/SButton.h"

TSharedRef<SWidget> UVlmButton::RebuildWidget()
{
	return SNew(SButton)
		.Text(TAttribute<FText>::CreateUObject(this, &UVlmButton::GetLabel))
		.OnClicked(FOnClicked::CreateUObject(this, &UVlmButton::HandleClicked));
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

FReply UVlmButton::HandleClicked()
{
	if (bSelectable)
	{
		SetSelectionState(!bSelected, true);
	}
	OnButtonClicked.Broadcast(ButtonID);
	return FReply::Handled();
}
