// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** Content that a caller makes for a notification by itself. */
class INotificationWidget
{
public:
	virtual ~INotificationWidget() = default;

	virtual TSharedRef<SWidget> AsWidget() = 0;
};
