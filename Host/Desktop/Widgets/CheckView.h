// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

/** A box to tick, and its label. */
class FCheckView : public FWidgetView
{
public:
	FCheckView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	QCheckBox& GetBox() const { return static_cast<QCheckBox&>(GetScreen()); }

	FString ShownLabel;
};
