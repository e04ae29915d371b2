// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "UObject/Object.h"
#include "Window/DockViews.h"

#include <vector>

class FDockView;
class IWindowServices;

/** The docks that the window always has. What stands in one is made when it is seen first: most stay behind another tab for hours. */
class FFixedDocks : public QObject
{
public:
	FFixedDocks(IWindowServices& InServices, QMainWindow& InWindow);

	/** Puts them into the window, each where it belongs at first. */
	void Make();

	/** Makes what stands in those that are in front at first, before the window shows. */
	void FillFirst();

	/** Wide middle, tools around it. Docks take sizes once they have their place, so the window shows already. */
	void ArrangeAtFirst();

	/** Once a frame. */
	void Refresh();

	/** The editor goes down. */
	void LetGo();

	/** Deletes them all, with what stands in them. */
	void Drop();

	/** Opens the dock of that name and brings it to the front. */
	void Show(const QString& Name);

	/** Shows objects in the details panel, whether or not it was seen yet. */
	void Inspect(const TArray<UObject*>& Objects);

	std::vector<QDockWidget*> GetAll() const;

private:
	struct FFixedDock
	{
		const DockViews::FKind* Kind = nullptr;
		QDockWidget* Dock = nullptr;
		FDockView* View = nullptr; // null before it is seen
	};

	void Fill(FFixedDock& Each);

	IWindowServices& Services;
	QMainWindow& Window;
	std::vector<FFixedDock> Docks;
	std::vector<QDockWidget*> Firsts; // in front of their stacks
};
