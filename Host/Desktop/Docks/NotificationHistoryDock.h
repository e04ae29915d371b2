// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

class IWindowServices;

/** Every notification since the editor came up, the newest first. */
class FNotificationHistoryDock : public FDockView
{
public:
	FNotificationHistoryDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	QTreeWidget* List;
	QStringList ShownStates; // by notification, to notice changes
};
