// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ChildViews.h"

class FTextLabel;

/** A line of a details panel, name and value in columns, with the lines below it; or a category. */
class FPropertyRowView : public FWidgetView
{
public:
	FPropertyRowView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	void FitLine(FSeenWidget& Seen);
	void SetOpen(bool bInOpen);

	FSlateLayout* Column; // the line, then what is below
	QWidget* Line;
	FSlateLayout* LineLayout;
	QToolButton* Arrow;
	FTextLabel* Heading;
	QWidget* ValueBox;
	FSlateLayout* ValueLayout;
	QWidget* NameBox;
	FSlateLayout* NameLayout;
	QWidget* Body;
	FSlateLayout* BodyLayout;
	FChildViews Name;
	FChildViews Value;
	FChildViews Below;
	bool bOpen = true;
};
