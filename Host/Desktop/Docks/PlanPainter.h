// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Level/VolumePlan.h"

class FPlanView;

/** Draws a plan into its view. */
class FPlanPainter
{
public:
	FPlanPainter(const FPlanView& InView, QPainter& InPainter);

	void DrawGrid(double PixelsPerCentimetre);
	void DrawShapes();
	void DrawLegend();
	void DrawScale(double PixelsPerCentimetre);
	void DrawEmpty(const QString& Text);

	/** @param Age from 0, fresh, to 1, gone */
	void DrawMark(QPointF Place, double Age);
	void DrawDrop(QPointF Place);

private:
	void DrawVolume(const FPlanShape& Shape);
	void DrawActor(const FPlanShape& Shape);
	void DrawInside(const FPlanShape& Shape, const QRectF& Room);
	QPen MakeLine(const FPlanShape& Shape) const;

	const FPlanView& View;
	QPainter& Painter;
	const QPalette& Palette;
};

namespace PlanColors
{
	/** States differ by pattern, too, for those who do not tell the colours apart. */
	QBrush GetFill(EVolumeState State);
	QColor GetLine(EVolumeState State);
}
