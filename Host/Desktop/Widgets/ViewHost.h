// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostWidget.h"

class FBrushes;
class FWidgetRoot;

/** What views of widgets need of the window around them. */
class IViewHost
{
public:
	virtual ~IViewHost() = default;

	/** Gives the widget what a person did. What follows from it shows soon, not within this call: views may go then. */
	virtual FHostInputResult Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input) = 0;

	/** Has everything brought up to date soon. */
	virtual void RequestFrame() = 0;

	virtual FBrushes& GetBrushes() = 0;

	/** How many rows a list has at least, seen or not: a script reads as many here as it does without a window. */
	virtual int GetLeastRows() const = 0;

	/** What lives as long as the host, for what is to be done later. */
	virtual QObject& GetContext() = 0;

	//~ The trees that are kept in step once a frame; roots come and go by themselves.
	virtual void AddRoot(FWidgetRoot& Root) = 0;
	virtual void RemoveRoot(FWidgetRoot& Root) = 0;
};
