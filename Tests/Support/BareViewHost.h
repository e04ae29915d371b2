// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "HostWidget.h"
#include "Look/Brushes.h"
#include "Widgets/ViewHost.h"

/** Views of one tree of widgets, without a window around them. Whoever owns it asks for frames. */
class FBareViewHost : public QObject, public IViewHost
{
public:
	virtual FHostInputResult Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input) override { return FHostWidgetAccess::Give(Widget, Input); }
	virtual void RequestFrame() override {}
	virtual FBrushes& GetBrushes() override { return Brushes; }
	virtual int GetLeastRows() const override { return 0; }
	virtual QObject& GetContext() override { return *this; }
	virtual void AddRoot(FWidgetRoot&) override {}
	virtual void RemoveRoot(FWidgetRoot&) override {}

private:
	FBrushes Brushes;
};
