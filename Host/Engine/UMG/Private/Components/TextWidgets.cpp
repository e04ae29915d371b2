// Copyright Velmorant. All Rights Reserved.

#include "Components/EditableText.h"
#include "Components/EditableTextBox.h"
#include "Components/TextBlock.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

TSharedRef<SWidget> UTextBlock::RebuildWidget()
{
	return SNew(STextBlock);
}

void UTextBlock::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<STextBlock> Widget = StaticCastSharedPtr<STextBlock>(MyWidget.Pin()))
	{
		Widget->SetText(Text);
		Widget->SetFont(Font);
		Widget->SetColorAndOpacity(ColorAndOpacity);
		Widget->SetAutoWrapText(AutoWrapText);
	}
}

void UTextBlock::SetText(FText InText)
{
	Text = InText;
	SynchronizeProperties();
}

void UTextBlock::SetFont(FSlateFontInfo InFontInfo)
{
	Font = InFontInfo;
	SynchronizeProperties();
}

void UTextBlock::SetColorAndOpacity(FSlateColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	SynchronizeProperties();
}

void UTextBlock::SetAutoWrapText(bool InAutoTextWrap)
{
	AutoWrapText = InAutoTextWrap;
	SynchronizeProperties();
}

TSharedRef<SWidget> UEditableText::RebuildWidget()
{
	return SNew(SEditableText)
		.Text(Text)
		.OnTextChanged_UObject(this, &UEditableText::HandleOnTextChanged)
		.OnTextCommitted_UObject(this, &UEditableText::HandleOnTextCommitted);
}

void UEditableText::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<SEditableText> Widget = StaticCastSharedPtr<SEditableText>(MyWidget.Pin()))
	{
		Widget->SetText(Text);
		Widget->SetHintText(HintText);
		Widget->SetIsReadOnly(bIsReadOnly);
		Widget->SetIsPassword(IsPassword);
	}
}

FText UEditableText::GetText() const
{
	const TSharedPtr<SEditableText> Widget = StaticCastSharedPtr<SEditableText>(MyWidget.Pin());
	return Widget.IsValid() ? Widget->GetText() : Text;
}

void UEditableText::SetText(FText InText)
{
	Text = InText;
	SynchronizeProperties();
}

void UEditableText::SetHintText(FText InHintText)
{
	HintText = InHintText;
	SynchronizeProperties();
}

void UEditableText::SetIsPassword(bool InbIsPassword)
{
	IsPassword = InbIsPassword;
	SynchronizeProperties();
}

void UEditableText::SetIsReadOnly(bool InbIsReadyOnly)
{
	bIsReadOnly = InbIsReadyOnly;
	SynchronizeProperties();
}

void UEditableText::HandleOnTextChanged(const FText& InText)
{
	Text = InText;
	OnTextChanged.Broadcast(InText);
}

void UEditableText::HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod)
{
	Text = InText;
	OnTextCommitted.Broadcast(InText, CommitMethod);
}

TSharedRef<SWidget> UEditableTextBox::RebuildWidget()
{
	return SNew(SEditableTextBox)
		.Text(Text)
		.OnTextChanged_UObject(this, &UEditableTextBox::HandleOnTextChanged)
		.OnTextCommitted_UObject(this, &UEditableTextBox::HandleOnTextCommitted);
}

void UEditableTextBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (const TSharedPtr<SEditableTextBox> Widget = StaticCastSharedPtr<SEditableTextBox>(MyWidget.Pin()))
	{
		Widget->SetText(Text);
		Widget->SetHintText(HintText);
		Widget->SetIsReadOnly(bIsReadOnly);
		Widget->SetIsPassword(IsPassword);
	}
}

FText UEditableTextBox::GetText() const
{
	const TSharedPtr<SEditableTextBox> Widget = StaticCastSharedPtr<SEditableTextBox>(MyWidget.Pin());
	return Widget.IsValid() ? Widget->GetText() : Text;
}

void UEditableTextBox::SetText(FText InText)
{
	Text = InText;
	SynchronizeProperties();
}

void UEditableTextBox::SetHintText(FText InHintText)
{
	HintText = InHintText;
	SynchronizeProperties();
}

void UEditableTextBox::SetIsPassword(bool bInIsPassword)
{
	IsPassword = bInIsPassword;
	SynchronizeProperties();
}

void UEditableTextBox::SetError(FText InError)
{
	if (const TSharedPtr<SEditableTextBox> Widget = StaticCastSharedPtr<SEditableTextBox>(MyWidget.Pin()))
	{
		Widget->SetError(InError);
	}
}

void UEditableTextBox::ClearError()
{
	SetError(FText::GetEmpty());
}

bool UEditableTextBox::HasError() const
{
	const TSharedPtr<SEditableTextBox> Widget = StaticCastSharedPtr<SEditableTextBox>(MyWidget.Pin());
	return Widget.IsValid() && Widget->HasError();
}

void UEditableTextBox::HandleOnTextChanged(const FText& InText)
{
	Text = InText;
	OnTextChanged.Broadcast(InText);
}

void UEditableTextBox::HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod)
{
	Text = InText;
	OnTextCommitted.Broadcast(InText, CommitMethod);
}
