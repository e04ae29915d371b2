// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Framework/SlateDelegates.h"
#include "Types/SlateStructs.h"
#include "Widgets/SCompoundWidget.h"

class INotificationWidget;
class SWindow;
struct FSlateBrush;

/** A notification while it shows. */
class SLATE_API SNotificationItem : public SCompoundWidget
{
public:
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail,
	};

	virtual void SetText(const TAttribute<FText>& InText) = 0;

	virtual ECompletionState GetCompletionState() const = 0;
	/** Also decides which buttons show. */
	virtual void SetCompletionState(ECompletionState State) = 0;

	/** Stays for the expire duration from now, then fades. */
	virtual void ExpireAndFadeout() = 0;
};

/** A button of a notification, and the states of the notification in which it shows. */
struct SLATE_API FNotificationButtonInfo
{
	/** Shows in one state only. */
	FNotificationButtonInfo(const TAttribute<FText>& InText, const TAttribute<FText>& InToolTip, FSimpleDelegate InCallback,
		SNotificationItem::ECompletionState VisibleInState = SNotificationItem::CS_Pending);

	TAttribute<FText> Text;
	TAttribute<FText> ToolTip;
	FSimpleDelegate Callback;

	EVisibility VisibilityOnNone = EVisibility::Visible;
	EVisibility VisibilityOnPending = EVisibility::Visible;
	EVisibility VisibilityOnSuccess = EVisibility::Visible;
	EVisibility VisibilityOnFail = EVisibility::Visible;
};

/** What a notification shows and for how long. */
struct SLATE_API FNotificationInfo
{
	FNotificationInfo(const FText& InText)
		: Text(InText)
	{
	}
	FNotificationInfo(TSharedPtr<INotificationWidget> InContentWidget)
		: ContentWidget(InContentWidget)
	{
	}

	TSharedPtr<INotificationWidget> ContentWidget;
	TAttribute<FText> Text;
	TAttribute<FText> SubText;
	TArray<FNotificationButtonInfo> ButtonDetails;
	const FSlateBrush* Image = nullptr;

	/** Seconds. */
	TAttribute<float> FadeInDuration = 0.5f;
	TAttribute<float> FadeOutDuration = 2.0f;
	TAttribute<float> ExpireDuration = 1.0f;

	bool bUseThrobber = false;
	bool bUseSuccessFailIcons = false;
	bool bUseLargeFont = false;
	FOptionalSize WidthOverride;

	/** Whether the expire time runs from the moment the notification is added; otherwise it waits for ExpireAndFadeout(). */
	bool bFireAndForget = true;
	bool bUseCopyToClipboard = false;

	TAttribute<ECheckBoxState> CheckBoxState = ECheckBoxState::Unchecked;
	FOnCheckStateChanged CheckBoxStateChanged;
	TAttribute<FText> CheckBoxText;
	FSimpleDelegate Hyperlink;
	TAttribute<FText> HyperlinkText;
	TSharedPtr<SWindow> ForWindow;
	bool bAllowThrottleWhenFrameRateIsLow = true;
};
