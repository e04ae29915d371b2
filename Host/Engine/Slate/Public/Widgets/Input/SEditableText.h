// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Fonts/SlateFontInfo.h"
#include "Framework/SlateDelegates.h"
#include "Misc/Optional.h"
#include "Widgets/SLeafWidget.h"

/** One line of text to edit, without a frame. */
class SLATE_API SEditableText : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableText)
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

	FText GetText() const { return Text.Get(FText::GetEmpty()); }

	/** Raises OnTextChanged when the text is another one. */
	void SetText(const TAttribute<FText>& InText);
	void SetHintText(const TAttribute<FText>& InHintText) { HintText = InHintText; }
	FText GetHintText() const { return HintText.Get(FText::GetEmpty()); }
	void SetIsReadOnly(const TAttribute<bool>& InIsReadOnly) { ReadOnly = InIsReadOnly; }
	bool IsTextReadOnly() const { return ReadOnly.Get(false); }
	void SetIsPassword(const TAttribute<bool>& InIsPassword);
	bool IsTextPassword() const { return Password.Get(false); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

private:
	/** What stands in a password field is to be printed nowhere. */
	void NoteSecret(const FText& Held) const;
	FText TakeTyped(const FString& InText);

	TAttribute<FText> Text;
	TOptional<FText> LastTyped; // over a bound text, until it is committed
	TAttribute<FText> HintText;
	TAttribute<bool> ReadOnly;
	TAttribute<bool> Password;
	TAttribute<FSlateFontInfo> Font;
	TAttribute<float> MinDesiredWidth;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
};
