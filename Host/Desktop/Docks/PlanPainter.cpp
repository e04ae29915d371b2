// Copyright Velmorant. All Rights Reserved.

#include "Docks/PlanPainter.h"

#include "Docks/PlanView.h"
#include "Look/Theme.h"

#include <algorithm>
#include <cmath>

namespace PlanPainter
{
	static const double GridPixels = 70.0; // a line is about so far from the next
	static const QSizeF LeastRoomForText(44.0, 15.0);
	static const double MarkerRadius = 6.0;
	static const std::size_t MostSmoothShapes = 3000; // more take too long to draw while the plan moves
	static const int Margin = 12;
	static const QSize Swatch(18, 12);

	/** One, two or five times a power of ten centimetres. */
	double FindRoundLength(double Wanted)
	{
		const double Power = std::pow(10.0, std::floor(std::log10(Wanted)));
		for (const double Step : {1.0, 2.0, 5.0})
		{
			if (Power * Step >= Wanted)
			{
				return Power * Step;
			}
		}
		return Power * 10.0;
	}

	QString DescribeLength(double Centimetres)
	{
		return Centimetres >= 100.0 ? QStringLiteral("%1 m").arg(Centimetres / 100.0) : QStringLiteral("%1 cm").arg(Centimetres);
	}

	QColor WithAlpha(QColor Color, int Alpha)
	{
		Color.setAlpha(Alpha);
		return Color;
	}
}

QColor PlanColors::GetLine(EVolumeState State)
{
	switch (State)
	{
		case EVolumeState::Assigned: return Theme::GetColors().Good;
		case EVolumeState::Duplicated: return Theme::GetColors().Bad;
		default: return Theme::GetColors().Subtle;
	}
}

QBrush PlanColors::GetFill(EVolumeState State)
{
	switch (State)
	{
		case EVolumeState::Assigned: return PlanPainter::WithAlpha(GetLine(State), 90);
		case EVolumeState::Duplicated: return QBrush(PlanPainter::WithAlpha(GetLine(State), 170), Qt::BDiagPattern);
		default: return PlanPainter::WithAlpha(GetLine(State), 30);
	}
}

FPlanPainter::FPlanPainter(const FPlanView& InView, QPainter& InPainter)
	: View(InView)
	, Painter(InPainter)
	, Palette(InView.palette())
{
	Painter.setRenderHint(QPainter::Antialiasing, View.GetPlan().GetShapes().size() <= PlanPainter::MostSmoothShapes);
}

void FPlanPainter::DrawGrid(double PixelsPerCentimetre)
{
	const double Step = PlanPainter::FindRoundLength(PlanPainter::GridPixels / PixelsPerCentimetre);
	const QRectF Seen(View.ToLevel(QPointF(0.0, 0.0)), View.ToLevel(QPointF(View.width(), View.height())));
	const QColor Line = PlanPainter::WithAlpha(Palette.color(QPalette::Text), 18);
	const QColor Axis = PlanPainter::WithAlpha(Palette.color(QPalette::Text), 60);
	const bool bSmooth = Painter.testRenderHint(QPainter::Antialiasing);
	Painter.setRenderHint(QPainter::Antialiasing, false);
	for (double X = std::ceil(Seen.left() / Step) * Step; X <= Seen.right(); X += Step)
	{
		const double At = View.ToView(QPointF(X, 0.0)).x();
		Painter.setPen(std::abs(X) < Step / 2.0 ? Axis : Line);
		Painter.drawLine(QPointF(At, 0.0), QPointF(At, View.height()));
	}
	for (double Y = std::ceil(Seen.top() / Step) * Step; Y <= Seen.bottom(); Y += Step)
	{
		const double At = View.ToView(QPointF(0.0, Y)).y();
		Painter.setPen(std::abs(Y) < Step / 2.0 ? Axis : Line);
		Painter.drawLine(QPointF(0.0, At), QPointF(View.width(), At));
	}
	Painter.setRenderHint(QPainter::Antialiasing, bSmooth);
}

/** What is selected comes last, to be seen whole. */
void FPlanPainter::DrawShapes()
{
	for (const bool bSelected : {false, true})
	{
		for (const FPlanShape& Shape : View.GetPlan().GetShapes())
		{
			if (Shape.bSelected == bSelected && Shape.bVolume)
			{
				DrawVolume(Shape);
			}
		}
	}
	for (const FPlanShape& Shape : View.GetPlan().GetShapes())
	{
		if (!Shape.bVolume)
		{
			DrawActor(Shape);
		}
	}
}

QPen FPlanPainter::MakeLine(const FPlanShape& Shape) const
{
	if (Shape.bSelected)
	{
		return QPen(Palette.color(QPalette::Highlight), 3.0);
	}
	QPen Line(PlanColors::GetLine(Shape.State), 1.2);
	Line.setStyle(Shape.State == EVolumeState::Unassigned ? Qt::DashLine : Qt::SolidLine);
	return Line;
}

void FPlanPainter::DrawVolume(const FPlanShape& Shape)
{
	QPolygonF Outline = Shape.MakeOutline();
	for (QPointF& Corner : Outline)
	{
		Corner = View.ToView(Corner);
	}
	if (!Outline.boundingRect().intersects(QRectF(View.rect())))
	{
		return;
	}
	if (!FVolumePlan::IsOn(Shape, View.GetFloor()))
	{
		Painter.setPen(QPen(PlanPainter::WithAlpha(Palette.color(QPalette::Text), 40), 1.0, Qt::DotLine));
		Painter.setBrush(Qt::NoBrush);
		Painter.drawPolygon(Outline);
		return;
	}
	Painter.setPen(MakeLine(Shape));
	Painter.setBrush(PlanColors::GetFill(Shape.State));
	Painter.drawPolygon(Outline);
	const double Lesser = std::min(Outline.boundingRect().width(), Outline.boundingRect().height());
	const bool bStraight = std::abs(std::remainder(Shape.Yaw, 90.0)) < 1.0;
	const QPointF Half = bStraight ? QPointF(Outline.boundingRect().width(), Outline.boundingRect().height()) / 2.0 : QPointF(Lesser, Lesser) * 0.35;
	const QPointF Middle = Outline.boundingRect().center();
	DrawInside(Shape, QRectF(Middle - Half, Middle + Half).adjusted(4.0, 2.0, -4.0, -2.0));
}

/** Identifier and label, as many lines as there is room for. */
void FPlanPainter::DrawInside(const FPlanShape& Shape, const QRectF& Room)
{
	if (Room.width() < PlanPainter::LeastRoomForText.width() || Room.height() < PlanPainter::LeastRoomForText.height())
	{
		return;
	}
	QStringList Lines = Shape.Identifier.isEmpty() ? QStringList({QObject::tr("unassigned")}) : Shape.Identifier;
	Lines.append(Shape.Label);
	const QFontMetricsF Metrics(Painter.font());
	const qsizetype NumLines = std::clamp<qsizetype>(static_cast<qsizetype>(Room.height() / Metrics.height()), 1, Lines.size());
	QRectF Line(Room.left(), Room.center().y() - static_cast<double>(NumLines) * Metrics.height() / 2.0, Room.width(), Metrics.height());
	for (qsizetype Index = 0; Index < NumLines; ++Index)
	{
		Painter.setPen(Index == 0 ? Palette.color(QPalette::Text) : Theme::GetColors().Subtle);
		const Qt::TextElideMode Elide = Index == 0 ? Qt::ElideLeft : Qt::ElideRight; // identifiers of neighbours differ at their ends
		Painter.drawText(Line, Qt::AlignCenter, Metrics.elidedText(Lines[Index], Elide, Line.width()));
		Line.translate(0.0, Metrics.height());
	}
}

void FPlanPainter::DrawActor(const FPlanShape& Shape)
{
	const QPointF Place = View.ToView(Shape.Centre);
	const double Radius = PlanPainter::MarkerRadius;
	const QPolygonF Diamond{Place + QPointF(0.0, -Radius), Place + QPointF(Radius, 0.0), Place + QPointF(0.0, Radius), Place + QPointF(-Radius, 0.0)};
	Painter.setPen(QPen(Palette.color(Shape.bSelected ? QPalette::Highlight : QPalette::Text), Shape.bSelected ? 2.5 : 1.2));
	Painter.setBrush(Palette.color(Shape.bSelected ? QPalette::Highlight : QPalette::Window));
	Painter.drawPolygon(Diamond);
}

void FPlanPainter::DrawLegend()
{
	struct FEntry
	{
		EVolumeState State;
		QString Text;
	};
	const FVolumePlan& Plan = View.GetPlan();
	const auto Count = [this, &Plan](EVolumeState State) { return Plan.CountVolumes(State, View.GetFloor()); };
	const FEntry Entries[] = {
		{EVolumeState::Assigned, QObject::tr("Assigned (%1)").arg(Count(EVolumeState::Assigned))},
		{EVolumeState::Unassigned, QObject::tr("Unassigned (%1)").arg(Count(EVolumeState::Unassigned))},
		{EVolumeState::Duplicated, QObject::tr("Duplicated (%1)").arg(Count(EVolumeState::Duplicated))},
	};
	const QFontMetrics Metrics(Painter.font());
	const int LineHeight = Metrics.height() + 4;
	int Width = 0;
	for (const FEntry& Entry : Entries)
	{
		Width = std::max(Width, Metrics.horizontalAdvance(Entry.Text));
	}
	const QRect Box(PlanPainter::Margin, View.height() - PlanPainter::Margin - 3 * LineHeight - 12, Width + PlanPainter::Swatch.width() + 28, 3 * LineHeight + 12);
	Painter.setPen(Theme::GetColors().Line);
	Painter.setBrush(PlanPainter::WithAlpha(Palette.color(QPalette::Window), 225));
	Painter.drawRoundedRect(Box, 4, 4);
	int Top = Box.top() + 6;
	for (const FEntry& Entry : Entries)
	{
		const QRect Swatch(QPoint(Box.left() + 9, Top + (LineHeight - PlanPainter::Swatch.height()) / 2), PlanPainter::Swatch);
		Painter.setPen(QPen(PlanColors::GetLine(Entry.State), 1.2, Entry.State == EVolumeState::Unassigned ? Qt::DashLine : Qt::SolidLine));
		Painter.setBrush(PlanColors::GetFill(Entry.State));
		Painter.drawRect(Swatch);
		Painter.setPen(Palette.color(QPalette::Text));
		Painter.drawText(QRect(Swatch.right() + 9, Top, Width + 4, LineHeight), Qt::AlignVCenter | Qt::AlignLeft, Entry.Text);
		Top += LineHeight;
	}
}

/** A bar of a round length, and where the axes point. */
void FPlanPainter::DrawScale(double PixelsPerCentimetre)
{
	const double Length = PlanPainter::FindRoundLength(PlanPainter::GridPixels / PixelsPerCentimetre);
	const QPointF Right(View.width() - PlanPainter::Margin, View.height() - PlanPainter::Margin - 2.0);
	const QPointF Left = Right - QPointF(Length * PixelsPerCentimetre, 0.0);
	Painter.setPen(QPen(Theme::GetColors().Subtle, 1.5));
	Painter.drawLine(Left, Right);
	Painter.drawLine(Left - QPointF(0.0, 5.0), Left);
	Painter.drawLine(Right - QPointF(0.0, 5.0), Right);
	Painter.drawText(QRectF(Left.x() - 60.0, Left.y() - 24.0, Right.x() - Left.x() + 60.0, 18.0), Qt::AlignRight | Qt::AlignBottom, PlanPainter::DescribeLength(Length));

	const QPointF Corner(PlanPainter::Margin + 4.0, PlanPainter::Margin + 4.0);
	Painter.drawLine(Corner, Corner + QPointF(26.0, 0.0));
	Painter.drawLine(Corner, Corner + QPointF(0.0, 26.0));
	Painter.drawText(Corner + QPointF(30.0, 4.0), QStringLiteral("X"));
	Painter.drawText(Corner + QPointF(-4.0, 40.0), QStringLiteral("Y"));
}

void FPlanPainter::DrawEmpty(const QString& Text)
{
	Painter.setPen(Palette.color(QPalette::PlaceholderText));
	Painter.drawText(QRectF(View.rect()).adjusted(40.0, 20.0, -40.0, -20.0), Qt::AlignCenter | Qt::TextWordWrap, Text);
}

void FPlanPainter::DrawMark(QPointF Place, double Age)
{
	const double Radius = 10.0 + 22.0 * Age;
	Painter.setBrush(Qt::NoBrush);
	Painter.setPen(QPen(PlanPainter::WithAlpha(Palette.color(QPalette::Highlight), static_cast<int>(255.0 * (1.0 - Age))), 2.5));
	Painter.drawEllipse(View.ToView(Place), Radius, Radius);
}

void FPlanPainter::DrawDrop(QPointF Place)
{
	const QPointF At = View.ToView(Place);
	Painter.setPen(QPen(Palette.color(QPalette::Highlight), 1.5, Qt::DashLine));
	Painter.drawLine(QPointF(At.x(), 0.0), QPointF(At.x(), View.height()));
	Painter.drawLine(QPointF(0.0, At.y()), QPointF(View.width(), At.y()));
	Painter.setPen(Palette.color(QPalette::Text));
	Painter.drawText(At + QPointF(8.0, -8.0), QObject::tr("%1 m, %2 m").arg(Place.x() / 100.0, 0, 'f', 2).arg(Place.y() / 100.0, 0, 'f', 2));
}
