// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ThrobberView.h"

#include "HostClock.h"

#include <cmath>

namespace Throbber
{
	static const int NumDots = 3;
	static const int StepMilliseconds = 80;
	static const double RoundSeconds = 0.96;
}

FThrobber::FThrobber(QWidget* Parent)
	: QWidget(Parent)
{
}

void FThrobber::paintEvent(QPaintEvent*)
{
	QPainter Painter(this);
	Painter.setRenderHint(QPainter::Antialiasing);
	Painter.setPen(Qt::NoPen);
	Painter.setBrush(palette().color(QPalette::Highlight));
	const double Round = HostClock::Now() / Throbber::RoundSeconds; // where the editor's time stands, so does this
	for (int Dot = 0; Dot < Throbber::NumDots; ++Dot)
	{
		const double Phase = 2.0 * M_PI * (Round - static_cast<double>(Dot) / Throbber::NumDots / 2.0);
		const double Radius = 3.0 + 1.6 * std::cos(Phase);
		Painter.drawEllipse(QPointF(8.0 + Dot * 14.0, height() / 2.0), Radius, Radius);
	}
}

void FThrobber::timerEvent(QTimerEvent*)
{
	update();
}

void FThrobber::showEvent(QShowEvent*)
{
	Timer = startTimer(Throbber::StepMilliseconds);
}

void FThrobber::hideEvent(QHideEvent*)
{
	killTimer(Timer);
}
