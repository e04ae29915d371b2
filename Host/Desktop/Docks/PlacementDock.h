// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

class IWindowServices;

/** What can be placed, by registered category: dragged into the plan, or put where the camera looks with Enter or a double click. */
class FPlacementDock : public FDockView
{
public:
	FPlacementDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	void Fill();
	void Filter();
	void Place(const QString& Key);

	IWindowServices& Services;
	QLineEdit* Search;
	QTreeWidget* List;
	QLabel* Hint;
	QStringList ShownKeys;
};
