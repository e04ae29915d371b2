// Copyright Velmorant. All Rights Reserved.

#include "Widgets/Input/SSearchBox.h"

#include "HostWidget.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"

void SSearchBox::Construct(const FArguments& InArgs)
{
	SEditableTextBox::Construct(SEditableTextBox::FArguments()
									.Text(InArgs._InitialText)
									.HintText(InArgs._HintText)
									.MinDesiredWidth(InArgs._MinDesiredWidth)
									.OnTextChanged(InArgs._OnTextChanged)
									.OnTextCommitted(InArgs._OnTextCommitted));
	// clang-format off
	SetContent(
		SNew(SHorizontalBox)
		+ SHorizontalBox::Slot()
		[
			EditableText.ToSharedRef()
		]
		+ SHorizontalBox::Slot()
		.AutoWidth()
		[
			SNew(SButton)
			.Tag(FName(TEXT("Clear")))
			.ToolTipText(NSLOCTEXT("SearchBox", "ClearTip", "Clear the search"))
			.Visibility(this, &SSearchBox::GetClearVisibility)
			.OnClicked(this, &SSearchBox::HandleClear)
		]);
	// clang-format on
}

EVisibility SSearchBox::GetClearVisibility() const
{
	return GetText().IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible;
}

FReply SSearchBox::HandleClear()
{
	SetText(FText::GetEmpty());
	return FReply::Handled();
}

FHostInputResult SSearchBox::TakeHostInput(const FHostInput& Input)
{
	if (Input.Kind == EHostInput::Type && !Input.Text.Equals(GetText().ToString()))
	{
		// Key by key: whoever listens hears of each.
		for (int32 NumKeys = 1; NumKeys < Input.Text.Len(); ++NumKeys)
		{
			SetText(FText::FromString(Input.Text.Left(NumKeys)));
		}
	}
	return SEditableTextBox::TakeHostInput(Input);
}

void SSearchBox::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	SEditableTextBox::DescribeToHost(OutDescription);
	OutDescription.Role = TEXT("search");
}
