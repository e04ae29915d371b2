// Copyright Velmorant. All Rights Reserved.

#include "Window/DockWidths.h"

#include <algorithm>

namespace DockWidths
{
	/** The docks that take room, one for each place. */
	QList<QDockWidget*> FindShown(const QMainWindow& Window, Qt::DockWidgetArea Area)
	{
		QList<QDockWidget*> Shown;
		for (QDockWidget* const Dock : Window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
		{
			// Behind another tab, a dock lies outside the window.
			if (Window.dockWidgetArea(Dock) == Area && !Dock->isHidden() && !Dock->isFloating() && Dock->geometry().right() > 0)
			{
				Shown.append(Dock);
			}
		}
		return Shown;
	}
}

FDockWidths FDockWidths::Measure(const QMainWindow& Window)
{
	FDockWidths Result;
	for (const Qt::DockWidgetArea Side : {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea})
	{
		for (const QDockWidget* const Dock : DockWidths::FindShown(Window, Side))
		{
			Result.Widths[Side] = std::max(Result.Widths.value(Side), Dock->width());
		}
	}
	return Result;
}

void FDockWidths::SuggestFor(Qt::DockWidgetArea Side, int Width)
{
	if (!Widths.contains(Side))
	{
		Widths[Side] = Width;
	}
}

void FDockWidths::Apply(QMainWindow& Window) const
{
	QList<QDockWidget*> Docks;
	QList<int> Wanted;
	for (auto Each = Widths.constBegin(); Each != Widths.constEnd(); ++Each)
	{
		for (QDockWidget* const Dock : DockWidths::FindShown(Window, Each.key()))
		{
			Docks.append(Dock);
			Wanted.append(Each.value());
		}
	}
	Window.resizeDocks(Docks, Wanted, Qt::Horizontal);
}
