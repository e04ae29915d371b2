// Copyright Velmorant. All Rights Reserved.

#include "Docks/PlanView.h"

#include "Docks/PlanPainter.h"
#include "HostClock.h"
#include "Level/LevelPlacement.h"

#include <algorithm>
#include <cmath>

namespace PlanView
{
	static const double MostPixelsPerCentimetre = 4.0;
	static const double LeastPixelsPerCentimetre = 0.0005;
	static const double ZoomStep = 1.25;
	static const double MovePixels = 60.0;
	static const double FitMargin = 50.0; // pixels
	static const double RoomAround = 2000.0; // centimetres that show around what is selected
	static const double LeastRoom = 500.0; // centimetres
	static const double ReachPixels = 9.0; // of a click at a marker
	static const double MarkSeconds = 0.9;
}

FPlanView::FPlanView(QWidget* Parent)
	: QWidget(Parent)
{
	setObjectName(QStringLiteral("PlanView"));
	setAccessibleName(tr("Plan of the level"));
	setAccessibleDescription(tr("Plus and minus zoom, arrows move, Home shows everything, F goes to the selection, Control with left and right selects the shape before and after."));
	setFocusPolicy(Qt::StrongFocus);
	setMouseTracking(true);
	setAcceptDrops(true);
	setMinimumSize(160, 120);
}

void FPlanView::SetPlan(FVolumePlan InPlan)
{
	Plan = std::move(InPlan);
	if (!bArranged)
	{
		Fit();
	}
	update();
}

void FPlanView::SetFloor(int InFloor)
{
	Floor = InFloor;
	update();
}

void FPlanView::SetEmptyText(const QString& Text)
{
	EmptyText = Text;
	update();
}

QPointF FPlanView::ToView(QPointF Place) const
{
	return (Place - Centre) * PixelsPerCentimetre + QPointF(width(), height()) / 2.0;
}

QPointF FPlanView::ToLevel(QPointF Point) const
{
	return (Point - QPointF(width(), height()) / 2.0) / PixelsPerCentimetre + Centre;
}

void FPlanView::Fit()
{
	FitInto(Plan.GetBounds(Floor));
	bArranged = false;
}

void FPlanView::FitSelection()
{
	QRectF Bounds;
	for (const FPlanShape& Shape : Plan.GetShapes())
	{
		if (Shape.bSelected)
		{
			const QRectF Own = QRectF(Shape.Centre, QSizeF(0.0, 0.0)).marginsAdded(QMarginsF(PlanView::RoomAround, PlanView::RoomAround, PlanView::RoomAround, PlanView::RoomAround));
			Bounds = Bounds.isNull() ? Own : Bounds.united(Own);
		}
	}
	if (!Bounds.isNull())
	{
		FitInto(Bounds);
		bArranged = true;
	}
}

void FPlanView::FitInto(const QRectF& Bounds)
{
	Centre = Bounds.center();
	const double AcrossPixels = std::max(40.0, width() - 2.0 * PlanView::FitMargin);
	const double DownPixels = std::max(40.0, height() - 2.0 * PlanView::FitMargin);
	const double Across = std::max(Bounds.width(), PlanView::LeastRoom);
	const double Down = std::max(Bounds.height(), PlanView::LeastRoom);
	PixelsPerCentimetre = std::clamp(std::min(AcrossPixels / Across, DownPixels / Down), PlanView::LeastPixelsPerCentimetre, PlanView::MostPixelsPerCentimetre);
	update();
}

void FPlanView::Zoom(double Factor)
{
	ZoomAt(QPointF(width(), height()) / 2.0, Factor);
}

/** What is under the point stays there. */
void FPlanView::ZoomAt(QPointF Point, double Factor)
{
	const QPointF Kept = ToLevel(Point);
	PixelsPerCentimetre = std::clamp(PixelsPerCentimetre * Factor, PlanView::LeastPixelsPerCentimetre, PlanView::MostPixelsPerCentimetre);
	Centre += Kept - ToLevel(Point);
	bArranged = true;
	update();
}

void FPlanView::Move(QPointF Pixels)
{
	Centre += Pixels / PixelsPerCentimetre;
	bArranged = true;
	update();
}

void FPlanView::PanTo(QPointF Place)
{
	Centre = Place;
	bArranged = true;
	Mark = Place;
	MarkedAt = HostClock::Now();
	update();
}

void FPlanView::paintEvent(QPaintEvent*)
{
	QPainter Painter(this);
	Painter.fillRect(rect(), palette().color(QPalette::Base));
	FPlanPainter Plotter(*this, Painter);
	if (Plan.GetFloors().empty())
	{
		Plotter.DrawEmpty(EmptyText);
	}
	if (!Plan.GetShapes().empty())
	{
		Plotter.DrawGrid(PixelsPerCentimetre);
		Plotter.DrawShapes();
		Plotter.DrawLegend();
		Plotter.DrawScale(PixelsPerCentimetre);
	}
	if (DropPlace.has_value())
	{
		Plotter.DrawDrop(*DropPlace);
	}
	const double Age = MarkedAt.IsSet() ? (HostClock::Now() - MarkedAt.GetValue()) / PlanView::MarkSeconds : 1.0;
	if (Age < 1.0)
	{
		Plotter.DrawMark(Mark, Age);
		QTimer::singleShot(16, this, [this] { update(); });
	}
	if (hasFocus())
	{
		Painter.setPen(QPen(palette().color(QPalette::Highlight), 1.0));
		Painter.setBrush(Qt::NoBrush);
		Painter.drawRect(rect().adjusted(0, 0, -1, -1));
	}
}

void FPlanView::resizeEvent(QResizeEvent* Event)
{
	QWidget::resizeEvent(Event);
	if (!bArranged)
	{
		Fit();
	}
}

void FPlanView::wheelEvent(QWheelEvent* Event)
{
	ZoomAt(Event->position(), std::pow(PlanView::ZoomStep, Event->angleDelta().y() / 120.0));
	Event->accept();
}

void FPlanView::mousePressEvent(QMouseEvent* Event)
{
	bPressed = true;
	bDragging = Event->button() != Qt::LeftButton;
	PressedAt = Event->position();
	DraggedFrom = PressedAt;
}

void FPlanView::mouseMoveEvent(QMouseEvent* Event)
{
	if (!bPressed)
	{
		setCursor(FindAt(Event->position()) != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
		return;
	}
	bDragging = bDragging || (Event->position() - PressedAt).manhattanLength() >= QApplication::startDragDistance();
	if (bDragging)
	{
		setCursor(Qt::ClosedHandCursor);
		Move(DraggedFrom - Event->position());
		DraggedFrom = Event->position();
	}
}

void FPlanView::mouseReleaseEvent(QMouseEvent* Event)
{
	const bool bClicked = bPressed && !bDragging && Event->button() == Qt::LeftButton;
	bPressed = false;
	bDragging = false;
	setCursor(Qt::ArrowCursor);
	if (!bClicked)
	{
		return;
	}
	const FPlanShape* const Shape = FindAt(Event->position());
	const bool bToggle = Event->modifiers().testFlag(Qt::ControlModifier) || Event->modifiers().testFlag(Qt::ShiftModifier);
	if (Shape != nullptr && OnSelect)
	{
		OnSelect(FPlanShape(*Shape), bToggle ? ESelect::Toggle : ESelect::Only);
	}
	else if (Shape == nullptr && !bToggle && OnSelectNone)
	{
		OnSelectNone();
	}
}

void FPlanView::mouseDoubleClickEvent(QMouseEvent* Event)
{
	const FPlanShape* const Shape = FindAt(Event->position());
	if (Shape != nullptr && OnOpen)
	{
		OnOpen(FPlanShape(*Shape)); // a copy: the plan may be read again meanwhile
	}
}

/** Markers lie above volumes, and what is drawn later above what is drawn before. */
const FPlanShape* FPlanView::FindAt(QPointF Point) const
{
	const FPlanShape* Found = nullptr;
	for (const FPlanShape& Shape : Plan.GetShapes())
	{
		const bool bHit = Shape.bVolume ? Shape.MakeOutline().containsPoint(ToLevel(Point), Qt::OddEvenFill)
										: (ToView(Shape.Centre) - Point).manhattanLength() <= PlanView::ReachPixels;
		if (bHit && FVolumePlan::IsOn(Shape, Floor) && (Found == nullptr || !Shape.bVolume || Found->bVolume))
		{
			Found = &Shape;
		}
	}
	return Found;
}

QString FPlanView::Describe(const FPlanShape& Shape) const
{
	QString Text = QStringLiteral("<b>%1</b>").arg(Shape.Label.toHtmlEscaped());
	if (!Shape.bVolume)
	{
		return Text;
	}
	switch (Shape.State)
	{
		case EVolumeState::Assigned: Text += QStringLiteral("<br>%1").arg(Shape.Identifier.join(QStringLiteral(" · ")).toHtmlEscaped()); break;
		case EVolumeState::Unassigned: Text += QStringLiteral("<br>%1").arg(tr("No unit is assigned")); break;
		case EVolumeState::Duplicated: Text += QStringLiteral("<br>%1<br>%2").arg(Shape.Identifier.join(QStringLiteral(" · ")).toHtmlEscaped(), tr("Another volume has the same identifier")); break;
	}
	return Text + QStringLiteral("<br>%1").arg(tr("%1 × %2 × %3 m").arg(Shape.HalfSize.width() / 50.0).arg(Shape.HalfSize.height() / 50.0).arg(Shape.Height / 100.0));
}

bool FPlanView::event(QEvent* Event)
{
	if (Event->type() == QEvent::ToolTip)
	{
		const QHelpEvent* const Help = static_cast<QHelpEvent*>(Event);
		const FPlanShape* const Shape = FindAt(Help->pos());
		QToolTip::showText(Help->globalPos(), Shape != nullptr ? Describe(*Shape) : QString(), this);
		return true;
	}
	if (Event->type() == QEvent::FocusIn || Event->type() == QEvent::FocusOut)
	{
		update();
	}
	return QWidget::event(Event);
}

void FPlanView::keyPressEvent(QKeyEvent* Event)
{
	const bool bControl = Event->modifiers().testFlag(Qt::ControlModifier);
	if (bControl && (Event->key() == Qt::Key_Left || Event->key() == Qt::Key_Right))
	{
		SelectNext(Event->key() == Qt::Key_Left ? -1 : 1);
	}
	else if (Event->key() == Qt::Key_Delete && OnDelete)
	{
		OnDelete();
	}
	else if (!HandleZoomKey(Event->key()) && !HandleMoveKey(Event->key()))
	{
		QWidget::keyPressEvent(Event);
	}
}

bool FPlanView::HandleZoomKey(int Key)
{
	switch (Key)
	{
		case Qt::Key_Plus:
		case Qt::Key_Equal: Zoom(PlanView::ZoomStep); return true;
		case Qt::Key_Minus: Zoom(1.0 / PlanView::ZoomStep); return true;
		case Qt::Key_Home: Fit(); return true;
		case Qt::Key_F: FitSelection(); return true;
		default: return false;
	}
}

bool FPlanView::HandleMoveKey(int Key)
{
	switch (Key)
	{
		case Qt::Key_Left: Move(QPointF(-PlanView::MovePixels, 0.0)); return true;
		case Qt::Key_Right: Move(QPointF(PlanView::MovePixels, 0.0)); return true;
		case Qt::Key_Up: Move(QPointF(0.0, -PlanView::MovePixels)); return true;
		case Qt::Key_Down: Move(QPointF(0.0, PlanView::MovePixels)); return true;
		default: return false;
	}
}

void FPlanView::SelectNext(int Step)
{
	std::vector<const FPlanShape*> Shown;
	int Current = -1;
	for (const FPlanShape& Shape : Plan.GetShapes())
	{
		if (FVolumePlan::IsOn(Shape, Floor))
		{
			Current = Shape.bSelected ? static_cast<int>(Shown.size()) : Current;
			Shown.push_back(&Shape);
		}
	}
	if (Shown.empty() || !OnSelect)
	{
		return;
	}
	const int Count = static_cast<int>(Shown.size());
	const int Before = Current < 0 && Step < 0 ? 0 : Current;
	const FPlanShape Next = *Shown[static_cast<std::size_t>((Before + Step + Count) % Count)]; // a copy: the plan is read again
	OnSelect(Next, ESelect::Only);
}

void FPlanView::dragEnterEvent(QDragEnterEvent* Event)
{
	if (Event->mimeData()->hasFormat(QLatin1String(LevelPlacement::MimeType)))
	{
		Event->acceptProposedAction();
	}
}

void FPlanView::dragMoveEvent(QDragMoveEvent* Event)
{
	DropPlace = ToLevel(Event->position());
	Event->acceptProposedAction();
	update();
}

void FPlanView::dragLeaveEvent(QDragLeaveEvent*)
{
	DropPlace.reset();
	update();
}

void FPlanView::dropEvent(QDropEvent* Event)
{
	DropPlace.reset();
	bArranged = true; // what was placed must not move everything
	update();
	Event->acceptProposedAction();
	if (OnDrop)
	{
		OnDrop(QString::fromUtf8(Event->mimeData()->data(QLatin1String(LevelPlacement::MimeType))), ToLevel(Event->position()));
	}
}
