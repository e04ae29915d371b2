// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

/** Moves for as long as it shows. */
class FThrobber : public QWidget
{
public:
	explicit FThrobber(QWidget* Parent);

	virtual QSize sizeHint() const override { return QSize(48, 16); }
	virtual QSize minimumSizeHint() const override { return sizeHint(); }

protected:
	virtual void paintEvent(QPaintEvent* Event) override;
	virtual void timerEvent(QTimerEvent* Event) override;
	virtual void showEvent(QShowEvent* Event) override;
	virtual void hideEvent(QHideEvent* Event) override;

private:
	int Timer = 0;
};

/** Shows that something is going on. */
class FThrobberView : public FWidgetView
{
public:
	FThrobberView(IViewHost& InHost, QWidget& Parent)
		: FWidgetView(InHost, *new FThrobber(&Parent))
	{
	}

protected:
	virtual void Refresh(FSeenWidget&) override {}
};
