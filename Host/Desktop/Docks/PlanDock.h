// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "Docks/PlanView.h"
#include "Level/LevelActors.h"
#include "Level/MinimapState.h"

class IWindowServices;

/** The level from above, floor by floor, with what its minimap shows. */
class FPlanDock : public FDockView
{
public:
	FPlanDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	QWidget* MakeBar();
	QWidget* MakeMinimap();
	void ListenToView();
	void ReadLevel();
	void ReadMinimap();
	void FollowCamera();
	void ShowFloorOf(const TArray<FString>& Labels);
	void FillFloors();
	void Select(const FPlanShape& Shape, FPlanView::ESelect How);
	void Place(const QString& Key, QPointF Where);
	void Act(const std::function<void()>& What);

	IWindowServices& Services;
	FPlanView* View;
	QComboBox* Floors;
	QListWidget* MinimapFloors;
	QLabel* MinimapText;
	FLevelWatch Watch;
	FMinimapState Minimap;
	bool bMinimapRead = false;
	int NumCameraMoves = -1; // -1 while no editor was looked at
};
