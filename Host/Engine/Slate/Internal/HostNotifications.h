// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "HostWidget.h"
#include "Misc/Optional.h"
#include "Widgets/Notifications/SNotificationList.h"

/** A button as it was given to its notification. */
struct FHostNotificationButton
{
	FText Label;
	FText ToolTip;
	/** Of a button whose visibility a delegate decides, none: ask HostNotifications::GetVisibleButtons(). */
	TArray<SNotificationItem::ECompletionState> ShownIn;
};

struct FHostNotificationState
{
	double Time = 0.0; // on the host's clock
	SNotificationItem::ECompletionState State = SNotificationItem::CS_None;
};

/** Everything that is known of one notification, also after it has gone. Times are seconds on the host's clock. */
struct FHostNotification
{
	int32 Id = 0; // counts from 1 in each editor
	FText Text;
	FText SubText;
	FName ImageName; // resource name of its image; None: the default icon
	TArray<FHostNotificationButton> Buttons;
	FText HyperlinkText;

	float FadeInDuration = 0.0f;
	float ExpireDuration = 0.0f;
	float FadeOutDuration = 0.0f;
	TOptional<float> Width;
	bool bFireAndForget = true;
	bool bUseThrobber = false;
	bool bUseSuccessFailIcons = false;
	bool bUseLargeFont = false;

	/** Every state it was put into, the first None left out. */
	TArray<FHostNotificationState> States;
	SNotificationItem::ECompletionState State = SNotificationItem::CS_None;

	double ShownAt = 0.0;
	TOptional<double> ExpiresAt; // when its expire time ends; unset while nothing made it run
	TOptional<double> FadeOutAt; // when it began, or will begin, to fade; unset while it stands
	TOptional<double> GoneAt; // set once it no longer shows
	TArray<FString> PressedButtons;

	bool IsGone() const { return GoneAt.IsSet(); }
};

/**
 * All notifications of the running editor, in the order in which they were shown, and a person's way to press their buttons.
 *
 * Host: a notification fades in while its expire time already runs; it stays for the expire duration, fades for the fade-out duration,
 * and is gone. Fadeout() begins the fading at once. ExpireAndFadeout() lets the expire time start anew, even while it fades.
 */
namespace HostNotifications
{
	using FRecord = TSharedRef<const FHostNotification>;

	/** All that were ever shown, oldest first. */
	TArray<FRecord> GetHistory();

	/** Those that still show, fading ones included. */
	TArray<FRecord> GetStanding();

	/** Labels of the buttons that show just now. */
	TArray<FString> GetVisibleButtons(const FHostNotification& Notification);

	/**
	 * Presses a button, if a person could: refuses when the notification is gone, or the button does not show or is disabled. A notification
	 * that fades can still be clicked.
	 */
	FHostInputResult PressButton(const FHostNotification& Notification, const FString& Label);

	/** Presses the button of that label on the newest notification on which a person could. */
	FHostInputResult PressButton(const FString& Label);

	/** Takes all standing ones away, as when the editor closes. */
	void DropStanding();
}
