// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ThrobberView.h"

#include <cmath>

namespace Throbber
{
	static const int NumDots = 3;
	static const int StepMilliseconds = 80;
	static const int StepsPerRound = 12;
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
	for (int Dot = 0; Dot < Throbber::NumDots; ++Dot)
	{
		const double Phase = 2.0 * M_PI * (static_cast<double>(Step) / Throbber::StepsPerRound - static_cast<double>(Dot) / Throbber::NumDots / 2.0);
		const double Radius = 3.0 + 1.6 * std::cos(Phase);
		Painter.drawEllipse(QPointF(8.0 + Dot * 14.0, height() / 2.0), Radius, Radius);
	}
}

void FThrobber::timerEvent(QTimerEvent*)
{
	Step = (Step + 1) % Throbber::StepsPerRound;
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
