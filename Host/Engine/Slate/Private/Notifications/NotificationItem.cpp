// Copyright Velmorant. All Rights Reserved.

#include "Notifications/NotificationItem.h"

#include "HostClock.h"
#include "Styling/SlateBrush.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Notifications/INotificationWidget.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace NotificationItem
{
	using EState = SNotificationItem::ECompletionState;

	EVisibility VisibilityIn(const FNotificationButtonInfo& Info, EState State)
	{
		switch (State)
		{
			case SNotificationItem::CS_Pending: return Info.VisibilityOnPending;
			case SNotificationItem::CS_Success: return Info.VisibilityOnSuccess;
			case SNotificationItem::CS_Fail: return Info.VisibilityOnFail;
			default: return Info.VisibilityOnNone;
		}
	}

	FHostNotificationButton DescribeButton(const FNotificationButtonInfo& Info)
	{
		FHostNotificationButton Button;
		Button.Label = Info.Text.Get(FText::GetEmpty());
		Button.ToolTip = Info.ToolTip.Get(FText::GetEmpty());
		for (const EState State : {SNotificationItem::CS_None, SNotificationItem::CS_Pending, SNotificationItem::CS_Success, SNotificationItem::CS_Fail})
		{
			if (VisibilityIn(Info, State).IsVisible())
			{
				Button.ShownIn.Add(State);
			}
		}
		return Button;
	}

	void FillRecord(const FNotificationInfo& Info, FHostNotification& OutRecord)
	{
		OutRecord.Text = Info.Text.Get(FText::GetEmpty());
		OutRecord.SubText = Info.SubText.Get(FText::GetEmpty());
		OutRecord.ImageName = Info.Image ? Info.Image->GetResourceName() : FName();
		OutRecord.HyperlinkText = Info.HyperlinkText.Get(FText::GetEmpty());
		OutRecord.FadeInDuration = Info.FadeInDuration.Get();
		OutRecord.ExpireDuration = Info.ExpireDuration.Get();
		OutRecord.FadeOutDuration = Info.FadeOutDuration.Get();
		if (Info.WidthOverride.IsSet())
		{
			OutRecord.Width = Info.WidthOverride.Get();
		}
		OutRecord.bFireAndForget = Info.bFireAndForget;
		OutRecord.bUseThrobber = Info.bUseThrobber;
		OutRecord.bUseSuccessFailIcons = Info.bUseSuccessFailIcons;
		OutRecord.bUseLargeFont = Info.bUseLargeFont;
		OutRecord.ShownAt = HostClock::Now();
		for (const FNotificationButtonInfo& Button : Info.ButtonDetails)
		{
			OutRecord.Buttons.Add(DescribeButton(Button));
		}
	}
}

FNotificationButtonInfo::FNotificationButtonInfo(const TAttribute<FText>& InText, const TAttribute<FText>& InToolTip, FSimpleDelegate InCallback,
	SNotificationItem::ECompletionState VisibleInState)
	: Text(InText)
	, ToolTip(InToolTip)
	, Callback(MoveTemp(InCallback))
	, VisibilityOnNone(VisibleInState == SNotificationItem::CS_None ? EVisibility::Visible : EVisibility::Collapsed)
	, VisibilityOnPending(VisibleInState == SNotificationItem::CS_Pending ? EVisibility::Visible : EVisibility::Collapsed)
	, VisibilityOnSuccess(VisibleInState == SNotificationItem::CS_Success ? EVisibility::Visible : EVisibility::Collapsed)
	, VisibilityOnFail(VisibleInState == SNotificationItem::CS_Fail ? EVisibility::Visible : EVisibility::Collapsed)
{
}

void SNotificationItemWidget::Construct(const FArguments&, const FNotificationInfo& Info, const TSharedRef<FHostNotification>& InRecord)
{
	Record = InRecord;
	NotificationItem::FillRecord(Info, *Record);
	Text = Info.Text;
	SubText = Info.SubText;
	Hyperlink = Info.Hyperlink;
	ButtonInfos = Info.ButtonDetails;

	// clang-format off
	ChildSlot
	[
		SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			Info.ContentWidget.IsValid() ? Info.ContentWidget->AsWidget() : SNullWidget::NullWidget
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(STextBlock)
			.Text_Lambda([this] { return Text.Get(FText::GetEmpty()); })
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(STextBlock)
			.Text_Lambda([this] { return SubText.Get(FText::GetEmpty()); })
			.Visibility_Lambda([this] { return SubText.Get(FText::GetEmpty()).IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible; })
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SButton)
			.Text_Lambda([this] { return Record->HyperlinkText; })
			.Visibility_Lambda([this] { return Hyperlink.IsBound() ? EVisibility::Visible : EVisibility::Collapsed; })
			.OnClicked(this, &SNotificationItemWidget::HandleHyperlink)
		]
		+ SVerticalBox::Slot().AutoHeight()
		[
			MakeButtons()
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SNotificationItemWidget::MakeButtons()
{
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	for (int32 Index = 0; Index < ButtonInfos.Num(); ++Index)
	{
		TSharedPtr<SButton>& Button = Buttons.AddDefaulted_GetRef();
		// clang-format off
		Row->AddSlot().AutoWidth()
		[
			SAssignNew(Button, SButton)
			.Text(ButtonInfos[Index].Text)
			.ToolTipText(ButtonInfos[Index].ToolTip)
			.Visibility(this, &SNotificationItemWidget::GetButtonVisibility, Index)
			.OnClicked(this, &SNotificationItemWidget::HandleButtonClicked, Index)
		];
		// clang-format on
	}
	return Row;
}

EVisibility SNotificationItemWidget::GetButtonVisibility(int32 Index) const
{
	return NotificationItem::VisibilityIn(ButtonInfos[Index], Record->State);
}

FReply SNotificationItemWidget::HandleButtonClicked(int32 Index)
{
	const FNotificationButtonInfo Pressed = ButtonInfos[Index];
	Record->PressedButtons.Add(Pressed.Text.Get(FText::GetEmpty()).ToString());
	Pressed.Callback.ExecuteIfBound();
	return FReply::Handled();
}

FReply SNotificationItemWidget::HandleHyperlink()
{
	const FSimpleDelegate Followed = Hyperlink;
	Followed.ExecuteIfBound();
	return FReply::Handled();
}

void SNotificationItemWidget::SetText(const TAttribute<FText>& InText)
{
	Text = InText;
	Record->Text = InText.Get(FText::GetEmpty());
}

void SNotificationItemWidget::SetCompletionState(ECompletionState State)
{
	Record->State = State;
	Record->States.Add({HostClock::Now(), State});
}

void SNotificationItemWidget::ExpireAndFadeout()
{
	if (!Record->IsGone())
	{
		Record->ExpiresAt = HostClock::Now() + Record->ExpireDuration;
		Record->FadeOutAt.Reset();
	}
}

void SNotificationItemWidget::Update()
{
	const double Now = HostClock::Now();
	if (!Record->FadeOutAt.IsSet() && Record->ExpiresAt.IsSet() && Now >= Record->ExpiresAt.GetValue())
	{
		Record->FadeOutAt = Record->ExpiresAt.GetValue();
	}
	if (!Record->IsGone() && Record->FadeOutAt.IsSet())
	{
		const double End = Record->FadeOutAt.GetValue() + Record->FadeOutDuration;
		if (Now >= End)
		{
			Record->GoneAt = End;
		}
	}
}

bool SNotificationItemWidget::IsFading() const
{
	return Record->FadeOutAt.IsSet();
}

TArray<FString> SNotificationItemWidget::GetVisibleButtons() const
{
	TArray<FString> Labels;
	for (int32 Index = 0; Index < ButtonInfos.Num(); ++Index)
	{
		if (GetButtonVisibility(Index).IsVisible())
		{
			Labels.Add(ButtonInfos[Index].Text.Get(FText::GetEmpty()).ToString());
		}
	}
	return Labels;
}

FHostInputResult SNotificationItemWidget::PressButton(const FString& Label)
{
	Update();
	if (Record->IsGone())
	{
		return FHostInputResult::Refused(TEXT("is on a notification that has gone"));
	}
	FString Reason = TEXT("is not on the notification");
	for (int32 Index = 0; Index < ButtonInfos.Num(); ++Index)
	{
		if (!ButtonInfos[Index].Text.Get(FText::GetEmpty()).ToString().Equals(Label))
		{
			continue;
		}
		if (!GetButtonVisibility(Index).IsVisible())
		{
			Reason = TEXT("does not show in the notification's present state");
		}
		else
		{
			return FHostWidgetAccess::Give(Buttons[Index].ToSharedRef(), FHostInput());
		}
	}
	return FHostInputResult::Refused(Reason);
}

void SNotificationItemWidget::DescribeToHost(FHostWidgetDescription& OutDescription) const
{
	static const TCHAR* const StateNames[] = {TEXT("none"), TEXT("pending"), TEXT("success"), TEXT("fail")};
	OutDescription.Role = TEXT("notification");
	OutDescription.Notes.Add(StateNames[Record->State]);
	if (IsFading())
	{
		OutDescription.Notes.Add(TEXT("fading"));
	}
	OutDescription.bBusy = Record->bUseThrobber && Record->State == CS_Pending;
}
