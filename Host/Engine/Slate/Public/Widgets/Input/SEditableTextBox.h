// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/Input/SEditableText.h"
#include "Widgets/Layout/SBorder.h"

/** One line of text to edit, in a frame. */
class SLATE_API SEditableTextBox : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _IsReadOnly(false)
		, _IsPassword(false)
		{
		}
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_ATTRIBUTE(FText, HintText)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(bool, IsReadOnly)
		SLATE_ATTRIBUTE(bool, IsPassword)
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	FText GetText() const { return EditableText->GetText(); }
	void SetText(const TAttribute<FText>& InText) { EditableText->SetText(InText); }
	void SetHintText(const TAttribute<FText>& InHintText) { EditableText->SetHintText(InHintText); }
	void SetIsReadOnly(const TAttribute<bool>& InIsReadOnly) { EditableText->SetIsReadOnly(InIsReadOnly); }
	void SetIsPassword(const TAttribute<bool>& InIsPassword) { EditableText->SetIsPassword(InIsPassword); }

	/** Shows beside the text what is wrong with it; nothing for the empty text. */
	void SetError(const FText& InError) { Error = InError; }
	bool HasError() const { return !Error.IsEmpty(); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

	TSharedPtr<SEditableText> EditableText;

private:
	FText Error;
};
