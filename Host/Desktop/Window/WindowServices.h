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

	/** A line of text for a moment, such as why something was not done. */
	virtual void Tell(const QString& Text) = 0;

	/** Gives the keyboard to the newest notification that has a button. */
	virtual void GoToNotification() = 0;

	/** Restarts the editor, unless something is unsaved and somebody would rather keep it. @param Without "Restart without saving" */
	virtual void Restart(const QString& Without) = 0;

	/** Looks now whether somebody else changed files that the editor has read, and offers to read them again. */
	virtual void LookOutside() = 0;
};
