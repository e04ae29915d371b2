// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "Docks/CollisionSetup.h"

class IWindowServices;

/** The pages of the project's settings, which open in tabs of their own, and its collision set-up beside what unit volumes need. */
class FProjectSetupDock : public FDockView
{
public:
	FProjectSetupDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	QWidget* MakePages();
	QWidget* MakeCollision();
	void FillPages();
	void OpenPage(const QTreeWidgetItem& Item);
	void CheckCollision();
	void ShowCollision();
	void ShowVerdict(const FCollisionSetup& Setup);
	void ShowProfiles(const FCollisionSetup& Setup);

	IWindowServices& Services;
	QTreeWidget* Pages;
	QLabel* Verdict;
	QLabel* Details;
	QPushButton* Check;
	QTreeWidget* Profiles;
	QString ShownPages;
	int LogSize = -1; // when the set-up was read; what changes it is logged
	int NumStanding = -1; // of the notifications then
};
