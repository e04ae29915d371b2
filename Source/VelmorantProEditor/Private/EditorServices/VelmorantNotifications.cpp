// Copyright Velmorant. All Rights Reserved.

#include "EditorServices/VelmorantNotifications.h"

#include "Framework/Notifications/NotificationManager.h"
#include "VelmorantProEditor.h"

TSharedPtr<SNotificationItem> VelmorantNotifications::Show(const FNotificationInfo& Info, SNotificationItem::ECompletionState State)
{
	const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);
	if (Item.IsValid())
	{
		Item->SetCompletionState(State); // also shows the buttons of that state
	}
	else
	{
		// One form for all, also without a sub-text: scripts look for it in logs.
		UE_LOG(LogVelmorantProEditor, Warning, TEXT("Notification not shown: %s: %s"), *Info.Text.Get().ToString(), *Info.SubText.Get().ToString());
	}
	return Item;
}

void VelmorantNotifications::Popup(const FString& Title, const FString& SubText, SNotificationItem::ECompletionState State, float Duration)
{
	FNotificationInfo Info(FText::AsCultureInvariant(Title));
	Info.SubText = FText::AsCultureInvariant(SubText);
	Info.ExpireDuration = Duration;
	Show(Info, State);
}
