// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

/**
 * Docks that share a place have one line for all of them: their tabs, each with a cross that closes it. A dock that stands alone keeps
 * its title, which looks the same.
 */
class FDockTabs : public QObject
{
public:
	explicit FDockTabs(QMainWindow& InWindow);

	/** Once a frame: docks come, go and move. */
	void Refresh();

private:
	void FitTitle(QDockWidget& Dock) const;
	void FitBar(QTabBar& Bar);
	void CloseTab(const QTabBar& Bar, int Index) const;

	QMainWindow& Window;
};
