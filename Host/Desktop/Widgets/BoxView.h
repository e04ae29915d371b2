// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/ChildViews.h"

/** A box around others: rows and columns, size boxes, borders, panels, and all that has no look of its own. */
class FBoxView : public FWidgetView
{
public:
	FBoxView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	FSlateLayout* Layout;
	FChildViews Children;
};
