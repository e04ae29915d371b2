// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostNotifications.h"

#include <map>

class FToast;
class IWindowServices;

/** The notifications that stand, in the lower right corner of the window, the newest lowest. */
class FToasts : public QObject
{
public:
	FToasts(IWindowServices& InServices, QWidget& InWindow);

	/** Once a frame. */
	void Refresh();

	/** The editor goes down. */
	void LetGo();

	/** Gives the newest one's button the keyboard. @return false when none has a button */
	bool FocusNewest();

	/** Whether notifications come and go by and by. */
	void SetFading(bool bInFading) { bFading = bInFading; }

private:
	void Stack();

	IWindowServices& Services;
	QWidget& Window;
	std::map<int, FToast*> Shown; // by notification
	bool bFading = true;
};
