// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ViewHost.h"

class FDesktopEditor;
class UObject;

/** What a dock of the window has of the window. */
class IWindowServices : public IViewHost
{
public:
	virtual FDesktopEditor& GetEditor() = 0;

	/** Opens the dock of that name (DockViews.cpp) and brings it to the front. */
	virtual void ShowDock(const QString& Name) = 0;

	/** Shows objects in the details panel. */
	virtual void Inspect(const TArray<UObject*>& Objects) = 0;
};
