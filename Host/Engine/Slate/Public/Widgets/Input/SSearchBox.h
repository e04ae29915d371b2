// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/Input/SEditableTextBox.h"

/** A text box to search with. Every change of its text is told at once, without Enter; so is the press of its button that clears it. */
class SLATE_API SSearchBox : public SEditableTextBox
{
public:
	/** Raised by the arrows beside the text; never by typing. */
	enum SearchDirection
	{
		Previous,
		Next,
	};
	DECLARE_DELEGATE_OneParam(FOnSearch, SearchDirection);

	SLATE_BEGIN_ARGS(SSearchBox)
		: _HintText(NSLOCTEXT("SearchBox", "SearchHint", "Search"))
		, _SelectAllTextWhenFocused(true)
		, _DelayChangeNotificationsWhileTyping(false)
		{
		}
		SLATE_ATTRIBUTE(FText, HintText)
		SLATE_ATTRIBUTE(FText, InitialText)
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		SLATE_EVENT(FOnSearch, OnSearch)
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_ATTRIBUTE(bool, DelayChangeNotificationsWhileTyping)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual FHostInputResult TakeHostInput(const FHostInput& Input) override;

private:
	EVisibility GetClearVisibility() const;
	FReply HandleClear();
};
