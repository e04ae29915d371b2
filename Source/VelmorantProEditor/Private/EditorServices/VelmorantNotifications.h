// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

namespace VelmorantNotifications
{
	/**
	 * Shows a notification in a completion state. Every notification of the module goes through here.
	 *
	 * @return null where nothing is shown: notifications are switched off, or there is no user interface, as in most commandlets. What it
	 * would have said is logged as a warning then, so that a build's log has it.
	 */
	TSharedPtr<SNotificationItem> Show(const FNotificationInfo& Info, SNotificationItem::ECompletionState State);

	/** Shows title and sub-text, which are not translated, for Duration seconds. */
	void Popup(const FString& Title, const FString& SubText, SNotificationItem::ECompletionState State, float Duration);
}
