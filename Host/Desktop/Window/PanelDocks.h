// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

#include <functional>
#include <map>
#include <vector>

class IWindowServices;
class SWidget;

/** The tabs of the editor as docks of the window: each dock comes and goes with what it shows, whoever opened or closed that. */
class FPanelDocks : public QObject
{
public:
	FPanelDocks(IWindowServices& InServices, QMainWindow& InWindow);

	/** Once a frame. */
	void Refresh();

	/** The editor goes down. */
	void LetGo();

private:
	/** Something that is open. */
	struct FOpen
	{
		QString Name; // of the dock, by which its place is remembered
		QString Title;
		Qt::DockWidgetArea Area = Qt::LeftDockWidgetArea; // at first
		std::function<TSharedPtr<SWidget>()> Find;
		std::function<void()> Close;
	};

	std::vector<FOpen> FindOpen() const;
	void AddTabs(std::vector<FOpen>& InOutOpen) const;
	void AddFreePanels(std::vector<FOpen>& InOutOpen) const;
	void AddSettings(std::vector<FOpen>& InOutOpen) const;
	void AddDetails(std::vector<FOpen>& InOutOpen) const;
	QDockWidget* MakeDock(const FOpen& Open);

	IWindowServices& Services;
	QMainWindow& Window;
	std::map<QString, QPointer<QDockWidget>> Docks; // by name
};
