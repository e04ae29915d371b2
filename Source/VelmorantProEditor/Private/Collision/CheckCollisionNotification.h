// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "CheckCollisionNotification.generated.h"

class SNotificationItem;
struct FNotificationInfo;

/**
 * Asks the designer whether to add the missing unit-volume collision profile and, once added, whether to restart.
 *
 * One object per failed check, in the transient package. It is rooted while it asks, because nothing else refers to it, and
 * released by "Skip" and "Later", and where its question cannot be shown.
 */
UCLASS()
class UCheckCollisionNotification : public UObject
{
	GENERATED_BODY()

public:
	void ShowMissingProfileNotification();

private:
	void OnAddToProjectConfig();
	void OnDismiss();
	void OnRestartEditor();

	void ShowProfilesAddedNotification();
	void ShowRestartNotification();

	/** Adds a notification that stays until one of its buttons is pressed, and makes it the current one. */
	void ShowQuestion(FNotificationInfo& Info);

	/** Lets the current question fade, without its buttons. There must be one. */
	void TakeQuestionAway();

	/** The question on screen; empty until the first one is shown, and where none can be. */
	TSharedPtr<SNotificationItem> NotificationItem;
};
