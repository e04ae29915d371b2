// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

/**
 * What stands in one of the window's fixed docks: a widget of its own that looks at the running editor.
 *
 * It holds no object, asset or widget of the editor from one frame to the next, but names, paths and weak pointers: the editor may
 * restart while the window stays.
 */
class FDockView : public QWidget
{
public:
	using QWidget::QWidget;

	/** Once a frame while it shows; has to be quick when nothing changed. */
	virtual void Refresh() = 0;

	/** The editor goes down: nothing of it may be held any more. Another one comes up after that. */
	virtual void LetGo() {}
};
