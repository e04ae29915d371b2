// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ItemsView.h"

#include "Look/EditorStyle.h"
#include "Look/Theme.h"
#include "QtText.h"

#include <algorithm>
#include <cmath>

namespace ItemsView
{
	static const int GuessedHeight = 24; // of a row that nobody saw yet
	static const int MostRowsWanted = 12;
	static const int FewestRows = 3;
	static const QMargins RowPadding(8, 3, 8, 3);

	class FRow : public QWidget
	{
	public:
		using QWidget::QWidget;

		std::function<void()> OnClicked;
		bool bSelected = false;

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			if (bSelected || underMouse())
			{
				QPainter Painter(this);
				Painter.fillRect(rect(), bSelected ? palette().color(QPalette::Highlight) : Theme::GetColors().Hover);
			}
		}
		virtual void mousePressEvent(QMouseEvent* Event) override
		{
			if (Event->button() == Qt::LeftButton && OnClicked)
			{
				OnClicked();
				Event->ignore(); // the list takes the focus
			}
		}
		virtual void enterEvent(QEnterEvent*) override { update(); }
		virtual void leaveEvent(QEvent*) override { update(); }
	};
}

namespace ItemsView
{
	bool IsWithinRow(const QWidget& Widget)
	{
		for (const QWidget* Around = &Widget; Around != nullptr; Around = Around->parentWidget())
		{
			if (dynamic_cast<const FRow*>(Around) != nullptr)
			{
				return true;
			}
		}
		return false;
	}
}

FItemsArea::FItemsArea(QWidget* Parent)
	: QAbstractScrollArea(Parent)
	, Canvas(new QWidget(viewport()))
{
	setFrameShape(QFrame::NoFrame);
	setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	setFocusPolicy(Qt::StrongFocus);
	viewport()->setBackgroundRole(QPalette::Base);
	viewport()->setAutoFillBackground(true);
	connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
		if (OnScrolled)
		{
			OnScrolled();
		}
	});
}

void FItemsArea::SetItems(int InNumItems, QSize InTile)
{
	if (NumItems != InNumItems || Tile != InTile)
	{
		NumItems = InNumItems;
		Tile = InTile;
		updateGeometry();
		FitBar();
		viewport()->update();
	}
}

int FItemsArea::GetRowHeight() const
{
	if (Tile.isValid())
	{
		return std::max(1, Tile.height());
	}
	return MeasuredHeight > 0 ? MeasuredHeight : ItemsView::GuessedHeight;
}

int FItemsArea::GetColumns() const
{
	return Tile.isValid() ? std::max(1, viewport()->width() / std::max(1, Tile.width())) : 1;
}

int FItemsArea::GetFirst() const
{
	return verticalScrollBar()->value() / GetRowHeight() * GetColumns();
}

int FItemsArea::GetCount() const
{
	return (viewport()->height() / GetRowHeight() + 2) * GetColumns();
}

void FItemsArea::PutRows(int InFirst)
{
	const QSize Wanted = Canvas->layout()->sizeHint();
	const int NumShown = Canvas->layout()->count();
	if (!Tile.isValid() && NumShown > 0)
	{
		const int Height = Canvas->layout()->itemAt(0)->sizeHint().height();
		if (Height > 0 && Height != MeasuredHeight)
		{
			MeasuredHeight = Height;
			updateGeometry();
			FitBar();
		}
	}
	const int Top = InFirst / GetColumns() * GetRowHeight() - verticalScrollBar()->value();
	const int Height = Tile.isValid() ? ((NumShown + GetColumns() - 1) / GetColumns()) * GetRowHeight() : Wanted.height();
	const QRect Place(0, Top, viewport()->width(), Height);
	if (Canvas->geometry() != Place)
	{
		Canvas->setGeometry(Place);
	}
	if (!Tile.isValid() && Canvas->layout()->hasHeightForWidth())
	{
		Canvas->resize(Place.width(), Canvas->layout()->heightForWidth(Place.width()));
	}
}

void FItemsArea::ScrollTo(int Item)
{
	const int Top = Item / GetColumns() * GetRowHeight();
	QScrollBar& Bar = *verticalScrollBar();
	if (Top < Bar.value())
	{
		Bar.setValue(Top);
	}
	else if (Top + GetRowHeight() > Bar.value() + viewport()->height())
	{
		Bar.setValue(Top + GetRowHeight() - viewport()->height());
	}
}

void FItemsArea::FitBar()
{
	const int NumRows = (NumItems + GetColumns() - 1) / GetColumns();
	QScrollBar& Bar = *verticalScrollBar();
	Bar.setSingleStep(GetRowHeight());
	Bar.setPageStep(std::max(GetRowHeight(), viewport()->height() - GetRowHeight()));
	Bar.setRange(0, std::max(0, NumRows * GetRowHeight() - viewport()->height()));
}

QSize FItemsArea::sizeHint() const
{
	if (IsNothing())
	{
		return QSize(200, 0);
	}
	const int NumRows = std::clamp(NumItems, 1, ItemsView::MostRowsWanted);
	const int ShownRows = Tile.isValid() ? 3 : NumRows;
	const int Wanted = NumItems > 0 && NumItems <= ItemsView::MostRowsWanted && !Tile.isValid() ? Canvas->layout()->sizeHint().height() : 0;
	return QSize(200, std::max(ShownRows * GetRowHeight(), std::min(Wanted, ItemsView::MostRowsWanted * ItemsView::GuessedHeight * 2)));
}

QSize FItemsArea::minimumSizeHint() const
{
	if (IsNothing())
	{
		return QSize(60, 0);
	}
	const int NumRows = std::clamp(NumItems, 1, ItemsView::FewestRows);
	return QSize(60, NumRows * GetRowHeight());
}

void FItemsArea::resizeEvent(QResizeEvent* Event)
{
	QAbstractScrollArea::resizeEvent(Event);
	FitBar();
	if (OnScrolled)
	{
		OnScrolled();
	}
}

void FItemsArea::scrollContentsBy(int, int)
{
	// The rows are put where they belong in the next frame.
}

void FItemsArea::paintEvent(QPaintEvent*)
{
	if (NumItems == 0 && !IsNothing())
	{
		QPainter Painter(viewport());
		Painter.setPen(palette().color(QPalette::PlaceholderText));
		Painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("Nothing here"));
	}
}

void FItemsArea::keyPressEvent(QKeyEvent* Event)
{
	const int Page = std::max(1, viewport()->height() / GetRowHeight() - 1) * GetColumns();
	int Step = 0;
	switch (Event->key())
	{
		case Qt::Key_Up: Step = -GetColumns(); break;
		case Qt::Key_Down: Step = GetColumns(); break;
		case Qt::Key_Left: Step = Tile.isValid() ? -1 : 0; break;
		case Qt::Key_Right: Step = Tile.isValid() ? 1 : 0; break;
		case Qt::Key_PageUp: Step = -Page; break;
		case Qt::Key_PageDown: Step = Page; break;
		case Qt::Key_Home: Step = -NumItems; break;
		case Qt::Key_End: Step = NumItems; break;
		default: break;
	}
	if (Step != 0 && OnMoved)
	{
		OnMoved(Step);
		return;
	}
	const bool bPress = Event->key() == Qt::Key_Space || Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
	if (bPress && OnPressed)
	{
		OnPressed();
		return;
	}
	QAbstractScrollArea::keyPressEvent(Event);
}

FItemsView::FItemsView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new FItemsArea(&Parent))
	, Layout(new FSlateLayout(Qt::Vertical, &GetArea().GetCanvas()))
	, Rows(InHost, GetArea().GetCanvas(), *Layout)
{
	GetArea().SetWithinRow(ItemsView::IsWithinRow(Parent));
	GetArea().OnScrolled = [this] { Host.RequestFrame(); };
	GetArea().OnMoved = [this](int Step) { MoveSelection(Step); };
	GetArea().OnPressed = [this] { PressSelected(); };
}

/** The area outlives its view a little. */
FItemsView::~FItemsView()
{
	GetArea().OnScrolled = nullptr;
	GetArea().OnMoved = nullptr;
	GetArea().OnPressed = nullptr;
}

void FItemsView::Refresh(FSeenWidget& Seen)
{
	const FHostWidgetLook& Look = Seen.GetLook();
	const QSize Tile = Look.bTiles ? QSize(static_cast<int>(std::lround(Look.Width.Get(0.0f))), static_cast<int>(std::lround(Look.Height.Get(0.0f)))) : QSize();
	GetArea().SetItems(Look.NumItems, Tile);
	Layout->SetTile(Tile);
	if (AskedOf >= 0 && Look.FirstItem != KnownFirst)
	{
		// Something else scrolled it: downwards to show the last row of those that it has, upwards the first.
		const int Last = std::min(Look.FirstItem + AskedCount, Look.NumItems) - 1;
		GetArea().ScrollTo(Look.FirstItem > KnownFirst ? std::max(Last, 0) : Look.FirstItem);
	}
	AskForRows(Seen);
	Rows.Fit(FHostWidgetAccess::PartsOf(Seen.GetWidget()));
	KnownFirst = FHostWidgetAccess::LookOf(*Seen.GetWidget()).FirstItem;
	GetArea().PutRows(KnownFirst);
}

void FItemsView::AskForRows(FSeenWidget& Seen)
{
	const int First = GetArea().GetFirst();
	const int Count = std::max(GetArea().GetCount(), Host.GetLeastRows());
	const int NumItems = Seen.GetLook().NumItems;
	if (First == AskedFirst && Count == AskedCount && NumItems == AskedOf)
	{
		return;
	}
	AskedFirst = First;
	AskedCount = Count;
	AskedOf = NumItems;
	FHostInput Input;
	Input.Kind = EHostInput::Scroll;
	Input.Index = First;
	Input.Count = Count;
	Host.Give(Seen.GetWidget(), Input);
}

void FItemsView::MoveSelection(int Step)
{
	const TSharedPtr<SWidget> List = GetWidget();
	if (!List.IsValid())
	{
		return;
	}
	FHostInput Input;
	Input.Kind = EHostInput::Move;
	Input.Index = Step;
	Give(Input);
}

/** Moving selects a row, but some lists wait for it to be clicked. */
void FItemsView::PressSelected()
{
	const TSharedPtr<SWidget> List = GetWidget();
	if (!List.IsValid())
	{
		return;
	}
	for (const TSharedRef<SWidget>& Row : FHostWidgetAccess::ChildrenOf(*List))
	{
		if (FHostWidgetAccess::Describe(*Row).bSelected)
		{
			Host.Give(Row, FHostInput());
			return;
		}
	}
}

FItemView::FItemView(IViewHost& InHost, QWidget& Parent)
	: FWidgetView(InHost, *new ItemsView::FRow(&Parent))
	, Layout(new FSlateLayout(Qt::Vertical, &GetScreen()))
	, Content(InHost, GetScreen(), *Layout)
{
	Layout->setContentsMargins(ItemsView::RowPadding);
	GetScreen().setAttribute(Qt::WA_Hover);
	static_cast<ItemsView::FRow&>(GetScreen()).OnClicked = [this] { Click(); };
}

QString FItemView::NameIt(const FHostWidgetDescription& Description) const
{
	const TSharedPtr<SWidget> Row = GetWidget();
	const QString Text = Row.IsValid() ? QtText::From(FHostWidgetAccess::TextOf(*Row)) : QString();
	return Text.isEmpty() ? FWidgetView::NameIt(Description) : Text;
}

void FItemView::Refresh(FSeenWidget& Seen)
{
	ItemsView::FRow& Row = static_cast<ItemsView::FRow&>(GetScreen());
	if (Row.bSelected != Seen.GetDescription().bSelected)
	{
		Row.bSelected = Seen.GetDescription().bSelected;
		QPalette Colors = Row.palette();
		Colors.setColor(QPalette::WindowText, QApplication::palette().color(Row.bSelected ? QPalette::HighlightedText : QPalette::WindowText));
		Row.setPalette(Colors);
		Row.update();
	}
	const bool bTile = Seen.GetParts().Num() == 1 && GetScreen().parentWidget() != nullptr && static_cast<FSlateLayout*>(GetScreen().parentWidget()->layout())->IsTiled();
	Layout->setContentsMargins(bTile ? QMargins() : ItemsView::RowPadding);
	Content.Fit(Seen.GetParts());
}
