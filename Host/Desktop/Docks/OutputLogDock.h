// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

class FLogModel;
class IWindowServices;

/** What the editor logs, as it comes. */
class FOutputLogDock : public FDockView
{
public:
	FOutputLogDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	QWidget* MakeBar();
	void FillCategories();
	void ShowState();
	void Copy();

	FLogModel* Model; // owned as a child
	QComboBox* Category;
	QComboBox* Verbosity;
	QLineEdit* Search;
	QListView* List;
	QLabel* State;
};
