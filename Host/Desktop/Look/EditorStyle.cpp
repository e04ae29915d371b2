// Copyright Velmorant. All Rights Reserved.

#include "Look/EditorStyle.h"

#include "Look/Theme.h"

FEditorStyle::FEditorStyle()
	: QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void FEditorStyle::drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const
{
	if (Element == PE_PanelButtonCommand)
	{
		EditorStyle::DrawButton(*Painter, Option->rect, Option->palette, Option->state, Option->state.testFlag(State_On));
		return;
	}
	if (Element == PE_PanelLineEdit && qobject_cast<const QLineEdit*>(Widget) != nullptr)
	{
		EditorStyle::DrawField(*Painter, Option->rect, Option->palette, Option->state, Widget->property("wrong").toBool());
		return;
	}
	if (Element == PE_FrameLineEdit || Element == PE_FrameFocusRect)
	{
		return; // drawn with the panel
	}
	QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
}

int FEditorStyle::pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const
{
	switch (Metric)
	{
		case PM_ScrollBarExtent: return 12;
		case PM_SmallIconSize: return 16;
		case PM_ToolBarIconSize: return 18;
		case PM_DockWidgetSeparatorExtent: return 4;
		default: return QProxyStyle::pixelMetric(Metric, Option, Widget);
	}
}

int FEditorStyle::styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* ReturnData) const
{
	if (Hint == SH_EtchDisabledText || Hint == SH_DitherDisabledText)
	{
		return 0;
	}
	return QProxyStyle::styleHint(Hint, Option, Widget, ReturnData);
}

namespace EditorStyle
{
	static void DrawFrame(QPainter& Painter, const QRect& Rect, const QColor& Fill, const QColor& Line)
	{
		Painter.save();
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(Line.alpha() > 0 ? QPen(Line) : QPen(Qt::NoPen));
		Painter.setBrush(Fill);
		Painter.drawRoundedRect(QRectF(Rect).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
		Painter.restore();
	}

	void DrawButton(QPainter& Painter, const QRect& Rect, const QPalette& Palette, QStyle::State State, bool bSelected)
	{
		const bool bEnabled = State.testFlag(QStyle::State_Enabled);
		QColor Fill = Palette.color(QPalette::Button);
		if (!bEnabled)
		{
			Fill = Theme::GetColors().Header;
		}
		else if (bSelected)
		{
			Fill = Palette.color(QPalette::Highlight);
		}
		if (bEnabled && State.testFlag(QStyle::State_Sunken))
		{
			Fill = Fill.darker(125);
		}
		else if (bEnabled && State.testFlag(QStyle::State_MouseOver))
		{
			Fill = bSelected ? Fill.lighter(112) : Theme::GetColors().Hover;
		}
		const bool bFocus = State.testFlag(QStyle::State_HasFocus) && State.testFlag(QStyle::State_KeyboardFocusChange);
		DrawFrame(Painter, Rect, Fill, bFocus ? Palette.color(QPalette::Highlight).lighter(120) : Theme::GetColors().FieldLine);
	}

	void DrawField(QPainter& Painter, const QRect& Rect, const QPalette& Palette, QStyle::State State, bool bWrong)
	{
		const bool bEditable = State.testFlag(QStyle::State_Enabled) && !State.testFlag(QStyle::State_ReadOnly);
		QColor Line = Theme::GetColors().FieldLine;
		if (bWrong)
		{
			Line = Theme::GetColors().Bad;
		}
		else if (State.testFlag(QStyle::State_HasFocus))
		{
			Line = Palette.color(QPalette::Highlight);
		}
		DrawFrame(Painter, Rect, bEditable ? Theme::GetColors().Field : Theme::GetColors().Header, Line);
	}

	void DrawDownArrow(QPainter& Painter, const QRect& Rect, const QColor& Color)
	{
		Painter.save();
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(QPen(Color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
		const QPointF Middle = QRectF(Rect).center();
		Painter.drawPolyline(QPolygonF({Middle + QPointF(-3.5, -1.5), Middle + QPointF(0.0, 2.0), Middle + QPointF(3.5, -1.5)}));
		Painter.restore();
	}
}
