// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Level/VolumePlan.h"

#include <functional>
#include <optional>

/**
 * A level from above, drawn to scale. Shows a plan that somebody else reads, and tells what a person does with it.
 *
 * Keys: + and - zoom, arrows move, Home fits everything, F goes to the selection, Ctrl with left and right selects the shape before
 * and after.
 */
class FPlanView : public QWidget
{
public:
	explicit FPlanView(QWidget* Parent);

	/** Everything fits into the view until somebody moves it. */
	void SetPlan(FVolumePlan InPlan);
	const FVolumePlan& GetPlan() const { return Plan; }

	/** FVolumePlan::AllFloors shows everything; of other floors, the outlines show faintly. */
	void SetFloor(int InFloor);
	int GetFloor() const { return Floor; }

	void Fit();
	void FitSelection();
	void Zoom(double Factor);

	/** Moves the place to the middle of the view and marks it for a moment. */
	void PanTo(QPointF Place);

	/** The editor goes down, and its clock begins anew. */
	void ForgetMark() { MarkedAt.Reset(); }

	/** What to say while there are no volumes. */
	void SetEmptyText(const QString& Text);

	//~ Between the level, in centimetres, and the widget, in its pixels
	QPointF ToView(QPointF Place) const;
	QPointF ToLevel(QPointF Point) const;

	enum class ESelect : uint8
	{
		Only,
		Toggle,
	};

	std::function<void(const FPlanShape& Shape, ESelect How)> OnSelect;
	std::function<void()> OnSelectNone;
	std::function<void(const QString& Key, QPointF Place)> OnDrop;
	std::function<void(const FPlanShape& Shape)> OnOpen; // clicked twice
	std::function<void()> OnDelete;

protected:
	virtual void paintEvent(QPaintEvent* Event) override;
	virtual void resizeEvent(QResizeEvent* Event) override;
	virtual void wheelEvent(QWheelEvent* Event) override;
	virtual void mousePressEvent(QMouseEvent* Event) override;
	virtual void mouseMoveEvent(QMouseEvent* Event) override;
	virtual void mouseReleaseEvent(QMouseEvent* Event) override;
	virtual void mouseDoubleClickEvent(QMouseEvent* Event) override;
	virtual void keyPressEvent(QKeyEvent* Event) override;
	virtual void dragEnterEvent(QDragEnterEvent* Event) override;
	virtual void dragMoveEvent(QDragMoveEvent* Event) override;
	virtual void dragLeaveEvent(QDragLeaveEvent* Event) override;
	virtual void dropEvent(QDropEvent* Event) override;
	virtual bool event(QEvent* Event) override;

private:
	const FPlanShape* FindAt(QPointF Point) const;
	QString Describe(const FPlanShape& Shape) const;
	void FitInto(const QRectF& Bounds);
	void ZoomAt(QPointF Point, double Factor);
	void Move(QPointF Pixels);
	void SelectNext(int Step);
	bool HandleZoomKey(int Key);
	bool HandleMoveKey(int Key);

	FVolumePlan Plan;
	QString EmptyText;
	QPointF Centre; // of the view, in the level
	double PixelsPerCentimetre = 0.05;
	int Floor = FVolumePlan::AllFloors;
	bool bArranged = false; // by a person or the camera; until then, everything fits
	QPointF PressedAt;
	QPointF DraggedFrom;
	bool bPressed = false;
	bool bDragging = false;
	QPointF Mark; // in the level
	TOptional<double> MarkedAt; // seconds of the editor's clock
	std::optional<QPointF> DropPlace; // in the level
};
