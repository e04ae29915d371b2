// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SNotificationItem;
struct FNotificationInfo;

template<typename T>
class THostState;

/** Shows notifications in the corner of the editor. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/**
	 * Shows a notification. It starts in state None, so buttons for another state appear when that state is set.
	 * @return null, and nothing is shown, when notifications are not allowed or there is no user interface to show them in.
	 */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Whether new notifications are shown, which they are unless somebody said otherwise. Those that stand stay. */
	void SetAllowNotifications(const bool bShouldAllow);
	bool AreNotificationsAllowed() const;

private:
	friend class THostState<FSlateNotificationManager>;

	FSlateNotificationManager() = default;

	bool bAllowNotifications = true;
};
