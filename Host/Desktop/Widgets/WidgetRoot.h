// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Layout/SlateLayout.h"
#include "Widgets/ChildViews.h"
#include "Widgets/ViewHost.h"

#include <functional>

/** A place in the window where a tree of the editor's widgets shows, kept in step once a frame. */
class FWidgetRoot : public QWidget
{
public:
	/** @param InFind gives the tree, anew each frame; null for nothing. Called for as long as the root is there. */
	FWidgetRoot(IViewHost& InHost, std::function<TSharedPtr<SWidget>()> InFind, QWidget* Parent = nullptr);
	virtual ~FWidgetRoot() override;

	/** Called by the host once a frame. */
	void Refresh();

private:
	IViewHost& Host;
	std::function<TSharedPtr<SWidget>()> Find;
	FSlateLayout* Layout;
	FChildViews Children;
};
