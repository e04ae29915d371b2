// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostNotifications.h"
#include "Widgets/Notifications/SNotificationList.h"

class SButton;

/** A standing notification: keeps its record up to date and its buttons in step with its state. */
class SNotificationItemWidget : public SNotificationItem
{
public:
	SLATE_BEGIN_ARGS(SNotificationItemWidget)
		{
		}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FNotificationInfo& Info, const TSharedRef<FHostNotification>& InRecord);

	//~ Begin SNotificationItem
	virtual void SetText(const TAttribute<FText>& InText) override;
	virtual ECompletionState GetCompletionState() const override { return Record->State; }
	virtual void SetCompletionState(ECompletionState State) override;
	virtual void ExpireAndFadeout() override;
	//~ End SNotificationItem

	/** Lets the host's clock work on it: after this, Record->IsGone() is true to the moment. */
	void Update();

	bool IsFading() const;
	TArray<FString> GetVisibleButtons() const;
	FHostInputResult PressButton(const FString& Label);

	const TSharedRef<FHostNotification>& GetRecord() const { return Record; }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;

private:
	TSharedRef<SWidget> MakeButtons();
	EVisibility GetButtonVisibility(int32 Index) const;
	FReply HandleButtonClicked(int32 Index);
	FReply HandleHyperlink();

	TSharedRef<FHostNotification> Record = MakeShared<FHostNotification>();
	TAttribute<FText> Text;
	TAttribute<FText> SubText;
	FSimpleDelegate Hyperlink;
	TArray<FNotificationButtonInfo> ButtonInfos;
	TArray<TSharedPtr<SButton>> Buttons; // one per info
};
