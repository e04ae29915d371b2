// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

class IWindowServices;

/** The window's menu bar: what concerns the editor as a whole. What the toolkit offers stands in its own menus. */
class FEditorMenus : public QObject
{
public:
	FEditorMenus(IWindowServices& InServices, QMainWindow& InWindow);

	/** Puts a dock into the menu of windows. */
	void AddDock(QDockWidget& Dock);

	/** Once a frame: what can be done just now. */
	void Refresh();

private:
	void MakeFileMenu();
	void MakeEditMenu();
	void MakeWindowMenu();
	void MakeHelpMenu();
	void SaveAll();
	void Restart();
	void OpenPanel(const QString& AssetPath);
	void FillPanels();

	IWindowServices& Services;
	QMainWindow& Window;
	QAction* Save = nullptr;
	QAction* Undo = nullptr;
	QAction* Redo = nullptr;
	QMenu* WindowMenu = nullptr;
	QMenu* PanelsMenu = nullptr;
};
