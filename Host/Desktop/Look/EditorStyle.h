// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

/** How the window's controls are drawn: flat, with rounded corners, in the colours of the theme. */
class FEditorStyle : public QProxyStyle
{
public:
	FEditorStyle();

	//~ Begin QStyle
	virtual void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override;
	virtual void drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const override;
	virtual void drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option, QPainter* Painter, const QWidget* Widget) const override;
	virtual QRect subControlRect(ComplexControl Control, const QStyleOptionComplex* Option, SubControl Part, const QWidget* Widget) const override;
	virtual QIcon standardIcon(StandardPixmap Icon, const QStyleOption* Option, const QWidget* Widget) const override;
	virtual int pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const override;
	virtual int styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* ReturnData) const override;
	virtual QSize sizeFromContents(ContentsType Type, const QStyleOption* Option, const QSize& Size, const QWidget* Widget) const override;
	//~ End QStyle

private:
	const QIcon CloseIcon;
	const QIcon FloatIcon;
};

/** The frames that several controls share. */
namespace EditorStyle
{
	/** What a person presses. @param bSelected stays pressed */
	void DrawButton(QPainter& Painter, const QRect& Rect, const QPalette& Palette, QStyle::State State, bool bSelected);

	/** What a person types into. */
	void DrawField(QPainter& Painter, const QRect& Rect, const QPalette& Palette, QStyle::State State, bool bWrong);

	void DrawDownArrow(QPainter& Painter, const QRect& Rect, const QColor& Color);

	constexpr int ControlHeight = 26;
	constexpr int RowHeight = 21; // at least, of trees and lists that a person picks from
	constexpr int Radius = 4;
}
