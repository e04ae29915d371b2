// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ButtonView.h"

#include "Look/Brushes.h"
#include "Look/EditorStyle.h"
#include "QtText.h"

#include <algorithm>

namespace ButtonView
{
	static const QMargins Padding(10, 4, 10, 4);
	static const int ArrowWidth = 14;
	static const int Gap = 6;

	bool HasContent(const TArray<FHostWidgetPart>& Parts)
	{
		return Parts.ContainsByPredicate([](const FHostWidgetPart& Part) { return Part.Widget != SNullWidget::NullWidget; });
	}
}

FContentButton::FContentButton(QWidget* Parent)
	: QAbstractButton(Parent)
	, Layout(new FSlateLayout(Qt::Horizontal, this))
{
	Layout->setContentsMargins(ButtonView::Padding);
	setFocusPolicy(Qt::StrongFocus);
	setAttribute(Qt::WA_Hover);
	setIconSize(QSize(16, 16));
}

void FContentButton::SetFlat(bool bInFlat)
{
	if (bFlat != bInFlat)
	{
		bFlat = bInFlat;
		update();
	}
}

void FContentButton::SetSelected(bool bInSelected)
{
	if (bSelected != bInSelected)
	{
		bSelected = bInSelected;
		QPalette Colors = palette();
		Colors.setColor(QPalette::WindowText, QApplication::palette().color(bSelected ? QPalette::HighlightedText : QPalette::ButtonText));
		setPalette(Colors);
		update();
	}
}

void FContentButton::SetArrow(bool bInArrow)
{
	if (bArrow != bInArrow)
	{
		bArrow = bInArrow;
		Layout->setContentsMargins(ButtonView::Padding + QMargins(0, 0, bArrow ? ButtonView::ArrowWidth : 0, 0));
		updateGeometry();
	}
}

void FContentButton::SetCaption(const QString& InCaption)
{
	if (Caption != InCaption)
	{
		Caption = InCaption;
		updateGeometry();
		update();
	}
}

QSize FContentButton::GetCaptionSize() const
{
	const int IconWidth = icon().isNull() ? 0 : iconSize().width();
	const int TextWidth = Caption.isEmpty() ? 0 : fontMetrics().horizontalAdvance(Caption);
	return QSize(IconWidth + TextWidth + (IconWidth > 0 && TextWidth > 0 ? ButtonView::Gap : 0), std::max(fontMetrics().height(), icon().isNull() ? 0 : iconSize().height()));
}

QSize FContentButton::sizeHint() const
{
	QSize Size = Layout->isEmpty() ? GetCaptionSize().grownBy(Layout->contentsMargins()) : Layout->sizeHint();
	return Size.expandedTo(QSize(EditorStyle::ControlHeight, EditorStyle::ControlHeight));
}

QSize FContentButton::minimumSizeHint() const
{
	return Layout->isEmpty() ? sizeHint() : Layout->minimumSize().expandedTo(QSize(EditorStyle::ControlHeight, EditorStyle::ControlHeight));
}

void FContentButton::paintEvent(QPaintEvent*)
{
	QStylePainter Painter(this);
	QStyleOptionButton Option;
	Option.initFrom(this);
	if (isDown())
	{
		Option.state |= QStyle::State_Sunken;
	}
	if (!bFlat || bSelected || underMouse() || isDown() || hasFocus())
	{
		EditorStyle::DrawButton(Painter, rect(), palette(), Option.state, bSelected);
	}
	const QColor TextColor = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, bSelected ? QPalette::HighlightedText : QPalette::ButtonText);
	if (bArrow)
	{
		EditorStyle::DrawDownArrow(Painter, QRect(width() - ButtonView::ArrowWidth - 6, 0, ButtonView::ArrowWidth, height()), TextColor);
	}
	if (!Layout->isEmpty())
	{
		return;
	}
	const QRect Room = rect().marginsRemoved(Layout->contentsMargins());
	const QSize Size = GetCaptionSize();
	int X = Room.left() + std::max(0, (Room.width() - Size.width()) / 2);
	if (!icon().isNull())
	{
		const QRect IconRect(X, Room.center().y() - iconSize().height() / 2 + 1, iconSize().width(), iconSize().height());
		icon().paint(&Painter, IconRect, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
		X += iconSize().width() + ButtonView::Gap;
	}
	Painter.setPen(TextColor);
	Painter.drawText(QRect(X, Room.top(), Room.right() - X + 1, Room.height()), Qt::AlignVCenter | Qt::AlignLeft, Caption);
}

void FContentButton::keyPressEvent(QKeyEvent* Event)
{
	if (Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter)
	{
		click();
		return;
	}
	QAbstractButton::keyPressEvent(Event);
}

FButtonView::FButtonView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new FContentButton(&Parent))
	, Content(InHost, GetScreen(), GetButton().GetContentLayout())
{
	Content.MakeInert();
	connect(&GetButton(), &QAbstractButton::clicked, this, [this] { Click(); });
}

void FButtonView::Refresh(FSeenWidget& Seen)
{
	const FHostWidgetLook& Look = Seen.GetLook();
	GetButton().SetSelected(Seen.GetDescription().bSelected);
	if (ButtonView::HasContent(Seen.GetParts()))
	{
		TArray<FHostWidgetPart> Parts = Seen.GetParts();
		for (FHostWidgetPart& Part : Parts)
		{
			// What fills a button would stick to its left.
			Part.HorizontalAlignment = Part.HorizontalAlignment == HAlign_Fill ? HAlign_Center : Part.HorizontalAlignment;
			Part.VerticalAlignment = Part.VerticalAlignment == VAlign_Fill ? VAlign_Center : Part.VerticalAlignment;
			Part.Fill = 1.0f;
		}
		Content.Fit(Parts);
		return;
	}
	const FName Icon = Look.Brush.IsSet() ? Look.Brush->GetResourceName() : FName();
	if (ShownIcon != Icon)
	{
		ShownIcon = Icon;
		GetButton().setIcon(Icon.IsNone() ? QIcon() : Host.GetBrushes().FindIcon(Look.Brush.GetValue()));
	}
	GetButton().SetFlat(!Icon.IsNone());
	const bool bSilent = Icon.IsNone() && Seen.GetDescription().Label.IsEmpty(); // says what it does in its tip alone
	GetButton().SetCaption(QtText::From(bSilent ? Seen.GetDescription().ToolTip : Seen.GetDescription().Label));
}
