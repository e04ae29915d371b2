// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

/** How wide the tools at the window's sides are. Qt shares the room anew whenever a dock comes or goes; people want theirs to stay. */
class FDockWidths
{
public:
	/** As they are now. */
	static FDockWidths Measure(const QMainWindow& Window);

	/** @param Width in pixels; taken where the side shows nothing yet */
	void SuggestFor(Qt::DockWidgetArea Side, int Width);

	/** What is not at the sides gets the rest. */
	void Apply(QMainWindow& Window) const;

private:
	QMap<Qt::DockWidgetArea, int> Widths;
};
