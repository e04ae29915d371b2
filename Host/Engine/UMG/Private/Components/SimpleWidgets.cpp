// Copyright Velmorant. All Rights Reserved.

#include "Components/Button.h"
#include "Components/CheckBox.h"
#include "Components/Image.h"
#include "Components/Throbber.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Images/SThrobber.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"

TSharedRef<SWidget> UCheckBox::RebuildWidget()
{
	return SNew(SCheckBox).OnCheckStateChanged_UObject(this, &UCheckBox::SlateOnCheckStateChangedCallback)[TakeContent()];
}

void UCheckBox::RefreshChildren()
{
	if (const TSharedPtr<SCheckBox> Widget = StaticCastSharedPtr<SCheckBox>(MyWidget.Pin()))
	{
		Widget->SetContent(TakeContent());
	}
}

void UCheckBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<SCheckBox> Widget = StaticCastSharedPtr<SCheckBox>(MyWidget.Pin()))
	{
		Widget->SetIsChecked(CheckedState);
	}
}

void UCheckBox::SetIsChecked(bool InIsChecked)
{
	SetCheckedState(InIsChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked);
}

void UCheckBox::SetCheckedState(ECheckBoxState InCheckedState)
{
	CheckedState = InCheckedState;
	SynchronizeProperties();
}

void UCheckBox::SlateOnCheckStateChangedCallback(ECheckBoxState NewState)
{
	CheckedState = NewState;
	OnCheckStateChanged.Broadcast(NewState == ECheckBoxState::Checked);
}

TSharedRef<SWidget> UButton::RebuildWidget()
{
	return SNew(SButton).OnClicked_UObject(this, &UButton::SlateHandleClicked)[TakeContent()];
}

void UButton::RefreshChildren()
{
	if (const TSharedPtr<SButton> Widget = StaticCastSharedPtr<SButton>(MyWidget.Pin()))
	{
		Widget->SetContent(TakeContent());
	}
}

FReply UButton::SlateHandleClicked()
{
	OnClicked.Broadcast();
	return FReply::Handled();
}

TSharedRef<SWidget> UImage::RebuildWidget()
{
	return SNew(SImage);
}

void UImage::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<SImage> Widget = StaticCastSharedPtr<SImage>(MyWidget.Pin()))
	{
		Widget->SetImage(&Brush);
		Widget->SetColorAndOpacity(FSlateColor(ColorAndOpacity));
	}
}

void UImage::SetColorAndOpacity(FLinearColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	SynchronizeProperties();
}

void UImage::SetBrush(const FSlateBrush& InBrush)
{
	Brush = InBrush;
	SynchronizeProperties();
}

TSharedRef<SWidget> UThrobber::RebuildWidget()
{
	return SNew(SThrobber);
}
