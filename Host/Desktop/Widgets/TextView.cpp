// Copyright Velmorant. All Rights Reserved.

#include "Widgets/TextView.h"

#include "Look/Fonts.h"
#include "Look/Theme.h"
#include "QtText.h"

#include <algorithm>

namespace TextView
{
	Qt::Alignment AlignmentOf(EHorizontalAlignment Alignment)
	{
		switch (Alignment)
		{
			case HAlign_Center: return Qt::AlignHCenter | Qt::AlignVCenter;
			case HAlign_Right: return Qt::AlignRight | Qt::AlignVCenter;
			default: return Qt::AlignLeft | Qt::AlignVCenter;
		}
	}

	/** White means the editor's own colour of texts, which a light theme has dark. */
	QColor ColorOf(const FSlateColor& Color)
	{
		const bool bOwn = !Color.IsColorSpecified() || Color.GetSpecifiedColor() == FLinearColor::White;
		return bOwn ? QColor() : Theme::MakeReadable(Theme::ToQt(Color.GetSpecifiedColor()));
	}

	static const int LeastCharacters = 3; // that show before the ellipsis
}

FTextLabel::FTextLabel(QWidget* Parent)
	: QWidget(Parent)
{
}

void FTextLabel::SetText(const QString& InText)
{
	if (Text != InText)
	{
		Text = InText;
		KnownHint = QSize();
		updateGeometry();
		update();
	}
}

void FTextLabel::SetWraps(bool bInWraps)
{
	if (bWraps != bInWraps)
	{
		bWraps = bInWraps;
		QSizePolicy Policy = sizePolicy();
		Policy.setHeightForWidth(bWraps);
		setSizePolicy(Policy);
		updateGeometry();
	}
}

void FTextLabel::SetAlignment(Qt::Alignment InAlignment)
{
	if (Alignment != InAlignment)
	{
		Alignment = InAlignment;
		update();
	}
}

void FTextLabel::SetColor(const QColor& InColor)
{
	if (Color != InColor)
	{
		Color = InColor;
		update();
	}
}

int FTextLabel::GetTextFlags() const
{
	return static_cast<int>(Alignment) | (bWraps ? Qt::TextWordWrap : 0);
}

QSize FTextLabel::sizeHint() const
{
	if (!KnownHint.isValid())
	{
		const QFontMetrics Metrics = fontMetrics();
		KnownHint = Text.contains(QLatin1Char('\n')) ? Metrics.size(0, Text) : QSize(Metrics.horizontalAdvance(Text), Metrics.height());
		KnownHint.setWidth(KnownHint.width() + 1); // of slanted letters
	}
	return KnownHint;
}

QSize FTextLabel::minimumSizeHint() const
{
	const QSize Hint = sizeHint();
	return QSize(std::min(Hint.width(), fontMetrics().averageCharWidth() * TextView::LeastCharacters), Hint.height());
}

int FTextLabel::heightForWidth(int Width) const
{
	return std::max(sizeHint().height(), fontMetrics().boundingRect(QRect(0, 0, std::max(1, Width), 100000), GetTextFlags(), Text).height());
}

void FTextLabel::paintEvent(QPaintEvent*)
{
	QPainter Painter(this);
	Painter.setPen(Color.isValid() && isEnabled() ? Color : palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
	const bool bFits = bWraps || sizeHint().width() <= width() + 1 || Text.contains(QLatin1Char('\n'));
	Painter.drawText(rect(), GetTextFlags(), bFits ? Text : fontMetrics().elidedText(Text, Qt::ElideRight, width()));
}

bool FTextLabel::event(QEvent* Event)
{
	const bool bCutOff = !bWraps && sizeHint().width() > width() + 1;
	if (Event->type() == QEvent::ToolTip && bCutOff && toolTip().isEmpty())
	{
		QToolTip::showText(static_cast<QHelpEvent*>(Event)->globalPos(), Text, this);
		return true;
	}
	return QWidget::event(Event);
}

void FTextLabel::changeEvent(QEvent* Event)
{
	if (Event->type() == QEvent::FontChange || Event->type() == QEvent::ApplicationFontChange)
	{
		KnownHint = QSize();
		updateGeometry();
	}
	QWidget::changeEvent(Event);
}

FTextView::FTextView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new FTextLabel(&Parent))
{
}

QString FTextView::NameIt(const FHostWidgetDescription& Description) const
{
	return QtText::From(Description.Value.Get(FString()));
}

void FTextView::Refresh(FSeenWidget& Seen)
{
	const FString Text = Seen.GetDescription().Value.Get(FString());
	if (!ShownText.Equals(Text))
	{
		ShownText = Text;
		GetLabel().SetText(QtText::From(Text));
	}
	const FHostWidgetLook& Look = Seen.GetLook();
	if (ShownFont != Look.Font)
	{
		ShownFont = Look.Font;
		GetLabel().setFont(Fonts::ToQt(Look.Font));
	}
	GetLabel().SetWraps(Look.bWrapsText);
	GetLabel().SetAlignment(TextView::AlignmentOf(Look.TextAlignment));
	GetLabel().SetColor(TextView::ColorOf(Look.Color));
}
