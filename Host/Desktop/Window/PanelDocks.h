// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"
#include "Window/DockWidths.h"

#include <functional>
#include <map>
#include <optional>
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

	/** What shows the panel that scripts know by that name, as high as it would like to be; null when none of the docks does. */
	QWidget* FindContent(const FString& Name);

private:
	/** Something that is open. */
	struct FOpen
	{
		QString Name; // of the dock, by which its place is remembered
		QString Title;
		Qt::DockWidgetArea Area = Qt::LeftDockWidgetArea; // at first
		int Margin = 0; // around its content
		QString Beside; // the dock to share a place with, where there is one of that name; empty for any of the area
		std::function<TSharedPtr<SWidget>()> Find;
		std::function<void()> Close;
	};

	std::vector<FOpen> FindOpen() const;
	void AddTabs(std::vector<FOpen>& InOutOpen) const;
	void AddFreePanels(std::vector<FOpen>& InOutOpen) const;
	void AddSettings(std::vector<FOpen>& InOutOpen) const;
	void AddDetails(std::vector<FOpen>& InOutOpen) const;
	bool DropClosed(const std::vector<FOpen>& All);
	QDockWidget* MakeDock(const FOpen& Open);
	void PutBeside(QDockWidget& Dock, const FOpen& Open);

	IWindowServices& Services;
	QMainWindow& Window;
	std::map<QString, QPointer<QDockWidget>> Docks; // by name
	std::optional<FDockWidths> Widths; // to be set again: a dock has its place only after the frame in which it came
};
