// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/ChildViews.h"

/** A button with widgets on it, or an icon and a text. */
class FContentButton : public QAbstractButton
{
public:
	explicit FContentButton(QWidget* Parent);

	FSlateLayout& GetContentLayout() const { return *Layout; }
	/** A flat one shows a frame only below the mouse. */
	void SetFlat(bool bInFlat);
	void SetSelected(bool bInSelected);
	void SetArrow(bool bInArrow);
	/** Behind an icon, in place of widgets. */
	void SetCaption(const QString& InCaption);

	//~ Begin QWidget
	virtual QSize sizeHint() const override;
	virtual QSize minimumSizeHint() const override;

protected:
	virtual void paintEvent(QPaintEvent* Event) override;
	virtual void keyPressEvent(QKeyEvent* Event) override;
	//~ End QWidget

private:
	QSize GetCaptionSize() const;

	FSlateLayout* Layout;
	QString Caption;
	bool bFlat = false;
	bool bSelected = false;
	bool bArrow = false;
};

/** A button, or a line of a menu that stands in a panel. */
class FButtonView : public FWidgetView
{
public:
	FButtonView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;

private:
	FContentButton& GetButton() const { return static_cast<FContentButton&>(GetScreen()); }

	FChildViews Content;
	FName ShownIcon;
};
