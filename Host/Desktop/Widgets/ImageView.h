// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

/** A picture. */
class FImageView : public FWidgetView
{
public:
	FImageView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
};
