// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

/** A colour. */
class FSwatchView : public FWidgetView
{
public:
	FSwatchView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
};
