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
	Line.setTextFormat(Qt::PlainText);
}

void FTextLabel::SetText(const QString& InText)
{
	if (Text != InText)
	{
		Text = InText;
		Forget();
		update();
	}
}

void FTextLabel::Forget()
{
	KnownHint = QSize();
	KnownSize = QSize();
	Line.setText(IsOneLine() ? Text : QString());
	updateGeometry();
}

bool FTextLabel::IsOneLine() const
{
	return !bWraps && !Text.contains(QLatin1Char('\n'));
}

void FTextLabel::SetWraps(bool bInWraps)
{
	if (bWraps != bInWraps)
	{
		bWraps = bInWraps;
		QSizePolicy Policy = sizePolicy();
		Policy.setHeightForWidth(bWraps);
		setSizePolicy(Policy);
		Forget();
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
	if (!KnownSize.isValid() || KnownSize.width() != Width)
	{
		const int Broken = fontMetrics().boundingRect(QRect(0, 0, std::max(1, Width), 100000), GetTextFlags(), Text).height();
		KnownSize = QSize(Width, std::max(sizeHint().height(), Broken));
	}
	return KnownSize.height();
}

/** Where a text of that size stands. */
QPointF FTextLabel::FindPlace(QSizeF Size) const
{
	const double Room = width() - Size.width();
	double Left = 0.0;
	if (Alignment.testFlag(Qt::AlignRight))
	{
		Left = Room;
	}
	else if (Alignment.testFlag(Qt::AlignHCenter))
	{
		Left = Room / 2.0;
	}
	return QPointF(Left, (height() - Size.height()) / 2.0);
}

void FTextLabel::paintEvent(QPaintEvent*)
{
	QPainter Painter(this);
	Painter.setPen(Color.isValid() && isEnabled() ? Color : palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
	if (!IsOneLine())
	{
		Painter.drawText(rect(), GetTextFlags(), Text);
	}
	else if (sizeHint().width() > width() + 1)
	{
		Painter.drawText(rect(), GetTextFlags(), fontMetrics().elidedText(Text, Qt::ElideRight, width()));
	}
	else if (!Text.isEmpty())
	{
		Line.prepare(QTransform(), Painter.font());
		Painter.drawStaticText(FindPlace(Line.size()), Line);
	}
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
		Forget();
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
