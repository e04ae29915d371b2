// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SNotificationItem;
struct FNotificationInfo;

/** Shows notifications in the corner of the editor. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/**
	 * Shows a notification. It starts in state None, so buttons for another state appear when that state is set.
	 * @return null when there is no user interface to show it in.
	 */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Takes ownership of Info and shows it at the next tick. */
	void QueueNotification(FNotificationInfo* Info);
};
