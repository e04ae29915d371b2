// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Widgets/WidgetView.h"

#include <QStaticText>

/** Draws a text: on one line, with an ellipsis where there is too little room, or broken into lines. */
class FTextLabel : public QWidget
{
public:
	explicit FTextLabel(QWidget* Parent);

	void SetText(const QString& InText);
	void SetWraps(bool bInWraps);
	void SetAlignment(Qt::Alignment InAlignment);
	/** Invalid: that of its surroundings. */
	void SetColor(const QColor& InColor);
	const QString& GetText() const { return Text; }

	//~ Begin QWidget
	virtual QSize sizeHint() const override;
	virtual QSize minimumSizeHint() const override;
	virtual bool hasHeightForWidth() const override { return bWraps; }
	virtual int heightForWidth(int Width) const override;

protected:
	virtual void paintEvent(QPaintEvent* Event) override;
	virtual bool event(QEvent* Event) override;
	virtual void changeEvent(QEvent* Event) override;
	//~ End QWidget

private:
	int GetTextFlags() const;
	bool IsOneLine() const;
	void Forget();
	QPointF FindPlace(QSizeF Size) const;

	QString Text;
	QColor Color;
	Qt::Alignment Alignment = Qt::AlignLeft | Qt::AlignVCenter;
	bool bWraps = false;
	QStaticText Line; // of a text on one line: letters are put together once, not with each painting
	mutable QSize KnownHint;
	mutable QSize KnownSize; // the last answer of heightForWidth(), and what for
};

/** A text of the editor. */
class FTextView : public FWidgetView
{
public:
	FTextView(IViewHost& InHost, QWidget& Parent);

protected:
	virtual void Refresh(FSeenWidget& Seen) override;
	virtual QString NameIt(const FHostWidgetDescription& Description) const override;

private:
	FTextLabel& GetLabel() const { return static_cast<FTextLabel&>(GetScreen()); }

	FString ShownText;
	FSlateFontInfo ShownFont;
};
