// Copyright Velmorant. All Rights Reserved.

#include "Look/EditorStyle.h"

#include "Look/Theme.h"

#include <vector>

namespace EditorStyle
{
	static const int TitleMargin = 12;
	static const int RoomForDockButtons = 48;
	static const int AccentHeight = 2; // of the line above the tab that shows
	static const int LeastTabWidth = 120; // of a tab whose title is shortened, so that it still says which one it is

	void DrawTick(QPainter& Painter, const QRect& Rect, const QPalette& Palette, QStyle::State State)
	{
		const bool bOn = State.testFlag(QStyle::State_On);
		const bool bSome = State.testFlag(QStyle::State_NoChange);
		const bool bEnabled = State.testFlag(QStyle::State_Enabled);
		Painter.save();
		Painter.setRenderHint(QPainter::Antialiasing);
		const QColor Accent = bEnabled ? Palette.color(QPalette::Highlight) : Theme::GetColors().FieldLine;
		const bool bFilled = bOn || bSome;
		const bool bMarked = State.testFlag(QStyle::State_MouseOver) || State.testFlag(QStyle::State_HasFocus);
		Painter.setPen(bFilled || (bEnabled && bMarked) ? Accent : Theme::GetColors().FieldLine);
		Painter.setBrush(bFilled ? Accent : Theme::GetColors().Field);
		Painter.drawRoundedRect(QRectF(Rect).adjusted(1.5, 1.5, -1.5, -1.5), 3, 3);
		Painter.setPen(QPen(Palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
		const QPointF Middle = QRectF(Rect).center();
		if (bSome)
		{
			Painter.drawLine(Middle - QPointF(3.0, 0.0), Middle + QPointF(3.0, 0.0));
		}
		else if (bOn)
		{
			Painter.drawPolyline(QPolygonF({Middle + QPointF(-3.2, 0.2), Middle + QPointF(-1.0, 2.6), Middle + QPointF(3.4, -2.8)}));
		}
		Painter.restore();
	}

	/** As a tab, because docks that share a place have tabs instead. */
	void DrawDockTitle(QPainter& Painter, const QStyleOptionDockWidget& Dock)
	{
		Painter.fillRect(Dock.rect, Theme::GetColors().Header);
		const QRect Room = Dock.rect.adjusted(TitleMargin, 0, -RoomForDockButtons, 0);
		const QString Title = Dock.fontMetrics.elidedText(Dock.title, Qt::ElideRight, Room.width());
		const QRect Tab(Dock.rect.left(), Dock.rect.top(), Dock.fontMetrics.horizontalAdvance(Title) + 2 * TitleMargin, Dock.rect.height());
		Painter.fillRect(Tab, Dock.palette.color(QPalette::Window));
		Painter.fillRect(QRect(Tab.left(), Tab.top(), Tab.width(), AccentHeight), Dock.palette.color(QPalette::Highlight));
		Painter.setPen(Dock.palette.color(QPalette::WindowText));
		Painter.drawText(Room, Qt::AlignVCenter | Qt::AlignLeft, Title);
	}

	/** Lines on a field of 16 by 16. */
	QIcon MakeIcon(const std::vector<QPolygonF>& Lines)
	{
		QIcon Icon;
		for (const int Scale : {1, 2})
		{
			QPixmap Picture(16 * Scale, 16 * Scale);
			Picture.fill(Qt::transparent);
			QPainter Painter(&Picture);
			Painter.scale(Scale, Scale);
			Painter.setRenderHint(QPainter::Antialiasing);
			Painter.setPen(QPen(Theme::GetColors().Subtle, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
			for (const QPolygonF& Line : Lines)
			{
				Painter.drawPolyline(Line);
			}
			Painter.end();
			Picture.setDevicePixelRatio(Scale);
			Icon.addPixmap(Picture);
		}
		return Icon;
	}

	/** Closes a tab. */
	void DrawCross(QPainter& Painter, const QRect& Rect, QStyle::State State)
	{
		const bool bMarked = State.testFlag(QStyle::State_MouseOver);
		Painter.save();
		Painter.setRenderHint(QPainter::Antialiasing);
		if (bMarked)
		{
			Painter.setPen(Qt::NoPen);
			Painter.setBrush(Theme::GetColors().FieldLine);
			Painter.drawRoundedRect(Rect, Radius, Radius);
		}
		Painter.setPen(QPen(Theme::GetColors().Subtle, 1.3, Qt::SolidLine, Qt::RoundCap));
		const QPointF Middle = QRectF(Rect).center();
		Painter.drawLine(Middle - QPointF(3.0, 3.0), Middle + QPointF(3.0, 3.0));
		Painter.drawLine(Middle + QPointF(-3.0, 3.0), Middle + QPointF(3.0, -3.0));
		Painter.restore();
	}
}

FEditorStyle::FEditorStyle()
	: QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
	, CloseIcon(EditorStyle::MakeIcon({{QPointF(4.5, 4.5), QPointF(11.5, 11.5)}, {QPointF(11.5, 4.5), QPointF(4.5, 11.5)}}))
	, FloatIcon(EditorStyle::MakeIcon({{QPointF(3.5, 6.5), QPointF(9.5, 6.5), QPointF(9.5, 12.5), QPointF(3.5, 12.5), QPointF(3.5, 6.5)}, {QPointF(6.5, 3.5), QPointF(12.5, 3.5), QPointF(12.5, 9.5)}}))
{
}

void FEditorStyle::drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const
{
	switch (Element)
	{
		case PE_PanelButtonCommand:
			EditorStyle::DrawButton(*Painter, Option->rect, Option->palette, Option->state, Option->state.testFlag(State_On));
			return;
		case PE_PanelLineEdit:
			if (qobject_cast<const QLineEdit*>(Widget) != nullptr)
			{
				EditorStyle::DrawField(*Painter, Option->rect, Option->palette, Option->state, Widget->property("wrong").toBool());
				return;
			}
			break;
		case PE_IndicatorCheckBox:
			EditorStyle::DrawTick(*Painter, Option->rect, Option->palette, Option->state);
			return;
		case PE_IndicatorTabClose:
			EditorStyle::DrawCross(*Painter, Option->rect, Option->state);
			return;
		case PE_IndicatorDockWidgetResizeHandle:
			Painter->fillRect(Option->rect, Theme::GetColors().Line);
			return;
		case PE_FrameLineEdit: // drawn with the panel
		case PE_FrameFocusRect:
		case PE_FrameStatusBarItem:
		case PE_FrameTabBarBase:
		case PE_IndicatorToolBarSeparator:
			return;
		case PE_FrameDockWidget:
			return;
		default: break;
	}
	QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
}

void FEditorStyle::drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter, const QWidget* Widget) const
{
	switch (Element)
	{
		case CE_DockWidgetTitle:
			if (const QStyleOptionDockWidget* const Dock = qstyleoption_cast<const QStyleOptionDockWidget*>(Option))
			{
				EditorStyle::DrawDockTitle(*Painter, *Dock);
				return;
			}
			break;
		case CE_TabBarTabShape:
			if (const QStyleOptionTab* const Tab = qstyleoption_cast<const QStyleOptionTab*>(Option))
			{
				const bool bSelected = Option->state.testFlag(State_Selected);
				const QColor Ground = bSelected ? Option->palette.color(QPalette::Window) : Theme::GetColors().Header;
				Painter->fillRect(Tab->rect, Option->state.testFlag(State_MouseOver) && !bSelected ? Theme::GetColors().Hover : Ground);
				Painter->fillRect(QRect(Tab->rect.right(), Tab->rect.top(), 1, Tab->rect.height()), Theme::GetColors().Line);
				if (bSelected)
				{
					Painter->fillRect(QRect(Tab->rect.left(), Tab->rect.top(), Tab->rect.width() - 1, EditorStyle::AccentHeight), Option->palette.color(QPalette::Highlight));
				}
				return;
			}
			break;
		case CE_HeaderSection:
			Painter->fillRect(Option->rect, Theme::GetColors().Header);
			Painter->fillRect(QRect(Option->rect.right(), Option->rect.top() + 4, 1, Option->rect.height() - 8), Theme::GetColors().FieldLine);
			return;
		case CE_HeaderEmptyArea:
		case CE_ToolBar:
			Painter->fillRect(Option->rect, Theme::GetColors().Header);
			return;
		case CE_Splitter:
			Painter->fillRect(Option->rect, Theme::GetColors().Line);
			return;
		default: break;
	}
	QProxyStyle::drawControl(Element, Option, Painter, Widget);
}

void FEditorStyle::drawComplexControl(ComplexControl Control, const QStyleOptionComplex* Option, QPainter* Painter, const QWidget* Widget) const
{
	if (Control != CC_ScrollBar)
	{
		QProxyStyle::drawComplexControl(Control, Option, Painter, Widget);
		return;
	}
	Painter->save();
	Painter->fillRect(Option->rect, Option->palette.color(QPalette::Base));
	const QRect Handle = subControlRect(CC_ScrollBar, Option, SC_ScrollBarSlider, Widget).adjusted(2, 2, -2, -2);
	const bool bHeld = Option->activeSubControls.testFlag(SC_ScrollBarSlider);
	Painter->setRenderHint(QPainter::Antialiasing);
	Painter->setPen(Qt::NoPen);
	Painter->setBrush(bHeld ? Theme::GetColors().Subtle : Theme::GetColors().FieldLine);
	Painter->drawRoundedRect(Handle, 4, 4);
	Painter->restore();
}

/** A scroll bar is its handle and no more: nobody uses the arrows. */
QRect FEditorStyle::subControlRect(ComplexControl Control, const QStyleOptionComplex* Option, SubControl Part, const QWidget* Widget) const
{
	const QStyleOptionSlider* const Bar = Control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(Option) : nullptr;
	if (Bar == nullptr)
	{
		return QProxyStyle::subControlRect(Control, Option, Part, Widget);
	}
	const bool bAcross = Bar->orientation == Qt::Horizontal;
	const int Length = bAcross ? Bar->rect.width() : Bar->rect.height();
	const int Range = Bar->maximum - Bar->minimum;
	const int Handle = Range > 0 ? qBound(24, static_cast<int>(static_cast<qint64>(Length) * Bar->pageStep / (static_cast<qint64>(Range) + Bar->pageStep)), Length) : Length;
	const int Begin = sliderPositionFromValue(Bar->minimum, Bar->maximum, Bar->sliderPosition, Length - Handle, Bar->upsideDown);
	const auto Cut = [&Bar, bAcross](int From, int To) {
		return bAcross ? QRect(From, 0, To - From, Bar->rect.height()) : QRect(0, From, Bar->rect.width(), To - From);
	};
	switch (Part)
	{
		case SC_ScrollBarSlider: return Cut(Begin, Begin + Handle);
		case SC_ScrollBarGroove: return Cut(0, Length);
		case SC_ScrollBarSubPage: return Cut(0, Begin);
		case SC_ScrollBarAddPage: return Cut(Begin + Handle, Length);
		default: return QRect();
	}
}

QIcon FEditorStyle::standardIcon(StandardPixmap Icon, const QStyleOption* Option, const QWidget* Widget) const
{
	// Layouts of docks ask again and again, so both are drawn once. A style lasts as long as its theme.
	if (Icon == SP_TitleBarCloseButton || Icon == SP_DockWidgetCloseButton || Icon == SP_LineEditClearButton)
	{
		return CloseIcon;
	}
	if (Icon == SP_TitleBarNormalButton)
	{
		return FloatIcon;
	}
	return QProxyStyle::standardIcon(Icon, Option, Widget);
}

int FEditorStyle::pixelMetric(PixelMetric Metric, const QStyleOption* Option, const QWidget* Widget) const
{
	switch (Metric)
	{
		case PM_ScrollBarExtent: return 12;
		case PM_SmallIconSize: return 16;
		case PM_ToolBarIconSize: return 18;
		case PM_DockWidgetSeparatorExtent: return 3;
		case PM_DockWidgetTitleMargin: return 5;
		case PM_DockWidgetFrameWidth: return 0;
		case PM_IndicatorWidth:
		case PM_IndicatorHeight: return 16;
		case PM_TabBarTabVSpace: return 12;
		case PM_TabBarTabHSpace: return 24;
		case PM_TabCloseIndicatorWidth:
		case PM_TabCloseIndicatorHeight: return 16;
		default: return QProxyStyle::pixelMetric(Metric, Option, Widget);
	}
}

int FEditorStyle::styleHint(StyleHint Hint, const QStyleOption* Option, const QWidget* Widget, QStyleHintReturn* ReturnData) const
{
	switch (Hint)
	{
		case SH_EtchDisabledText:
		case SH_DitherDisabledText: return 0;
		case SH_ScrollBar_Transient: return 0;
		default: return QProxyStyle::styleHint(Hint, Option, Widget, ReturnData);
	}
}

namespace EditorStyle
{
	/** Not the lists of combos, nor text by lines. */
	bool IsPickedFrom(const QWidget* Widget)
	{
		return qobject_cast<const QTreeView*>(Widget) != nullptr || qobject_cast<const QListWidget*>(Widget) != nullptr;
	}
}

namespace EditorStyle
{
	/** Asking how narrow a tab may become, the bar leaves two letters of its title. */
	bool IsShortenedTab(const QStyleOption& Option)
	{
		const QStyleOptionTab* const Tab = qstyleoption_cast<const QStyleOptionTab*>(&Option);
		return Tab != nullptr && Tab->text.endsWith(QLatin1String("..."));
	}
}

QSize FEditorStyle::sizeFromContents(ContentsType Type, const QStyleOption* Option, const QSize& Size, const QWidget* Widget) const
{
	const QSize Wanted = QProxyStyle::sizeFromContents(Type, Option, Size, Widget);
	switch (Type)
	{
		case CT_PushButton:
		case CT_LineEdit: return QSize(Wanted.width(), EditorStyle::ControlHeight);
		case CT_HeaderSection: return QSize(Wanted.width(), EditorStyle::ControlHeight);
		case CT_MenuItem: return QSize(Wanted.width(), qMax(Wanted.height(), EditorStyle::ControlHeight - 2));
		case CT_TabBarTab: return Option != nullptr && EditorStyle::IsShortenedTab(*Option) ? Wanted.expandedTo(QSize(EditorStyle::LeastTabWidth, 0)) : Wanted;
		case CT_ItemViewItem: return EditorStyle::IsPickedFrom(Widget) ? Wanted.expandedTo(QSize(0, EditorStyle::RowHeight)) : Wanted;
		default: return Wanted;
	}
}

namespace EditorStyle
{
	void DrawFrame(QPainter& Painter, const QRect& Rect, const QColor& Fill, const QColor& Line)
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
