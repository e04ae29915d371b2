// Copyright Velmorant. All Rights Reserved.

#include "Widgets/ComboPopup.h"

#include "Look/Theme.h"
#include "Widgets/WidgetRoot.h"

#include <algorithm>

namespace ComboPopup
{
	static const int LongestList = 450; // pixels
	static const int LeastWidth = 180;
	static const QMargins OptionPadding(8, 3, 8, 3);

	/** The options, with the one under the mouse or the keyboard marked. */
	class FOptionList : public QWidget
	{
	public:
		using QWidget::QWidget;

		QRect Marked;

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			QPainter Painter(this);
			Painter.fillRect(Marked, Theme::GetColors().Hover);
		}
	};
}

FComboPopup::FComboPopup(IViewHost& InHost, const TSharedRef<SWidget>& InCombo, QWidget& InButton)
	: QFrame(&InButton, Qt::Popup)
	, Host(InHost)
	, Combo(InCombo)
	, Button(&InButton)
	, Area(new QScrollArea(this))
{
	setAttribute(Qt::WA_DeleteOnClose);
	setFrameShape(QFrame::StyledPanel);
	setObjectName(QStringLiteral("ComboPopup"));
	QVBoxLayout* const Layout = new QVBoxLayout(this);
	Layout->setContentsMargins(1, 1, 1, 1);
	Layout->addWidget(Area);
	Area->setFrameShape(QFrame::NoFrame);
	Area->setWidgetResizable(true);
	Area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
	Area->setFocusPolicy(Qt::NoFocus);
	const TArray<FHostWidgetPart> Parts = FHostWidgetAccess::PartsOf(InCombo);
	if (Parts.ContainsByPredicate([](const FHostWidgetPart& Part) { return Part.Kind == EHostPart::Menu; }))
	{
		ShowMenu();
	}
	else
	{
		ShowOptions();
	}
}

FComboPopup::~FComboPopup()
{
	TellClosed();
}

void FComboPopup::ShowMenu()
{
	Body = new FWidgetRoot(Host, [this]() -> TSharedPtr<SWidget> {
		const TSharedPtr<SWidget> Held = Combo.Pin();
		if (!Held.IsValid())
		{
			return nullptr;
		}
		for (const FHostWidgetPart& Part : FHostWidgetAccess::PartsOf(Held.ToSharedRef()))
		{
			if (Part.Kind == EHostPart::Menu)
			{
				return Part.Widget;
			}
		}
		return nullptr;
	});
	Area->setWidget(Body);
}

void FComboPopup::ShowOptions()
{
	Body = new ComboPopup::FOptionList;
	Area->setWidget(Body);
	FSlateLayout* const Layout = new FSlateLayout(Qt::Vertical, Body);
	OptionViews = std::make_unique<FChildViews>(Host, *Body, *Layout);
	OptionViews->MakeInert();
	Options = FHostWidgetAccess::OptionWidgetsOf(Combo.Pin().ToSharedRef());
	TArray<FHostWidgetPart> Parts;
	for (const TSharedRef<SWidget>& Option : Options)
	{
		const QMargins& Padding = ComboPopup::OptionPadding;
		Parts.Add(FHostWidgetPart{Option, EHostPart::Content, FMargin(static_cast<float>(Padding.left()), static_cast<float>(Padding.top())), HAlign_Fill, VAlign_Center, {}, 0.0f});
	}
	OptionViews->Fit(Parts);
	Body->setMouseTracking(true);
	Body->installEventFilter(this);
	setFocusPolicy(Qt::StrongFocus);
}

void FComboPopup::Open()
{
	const QSize Wanted = Body->sizeHint() + QSize(4, 4);
	const int BarWidth = Wanted.height() > ComboPopup::LongestList ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
	resize(std::max({Button->width(), Wanted.width() + BarWidth, ComboPopup::LeastWidth}), std::min(Wanted.height(), ComboPopup::LongestList));
	const QRect Screen = Button->screen()->availableGeometry();
	QPoint Corner = Button->mapToGlobal(QPoint(0, Button->height()));
	if (Corner.y() + height() > Screen.bottom())
	{
		Corner.setY(std::max(Screen.top(), Button->mapToGlobal(QPoint(0, 0)).y() - height()));
	}
	Corner.setX(std::max(Screen.left(), std::min(Corner.x(), Screen.right() - width())));
	move(Corner);
	show();
	QLineEdit* const Search = Body->findChild<QLineEdit*>();
	QWidget* const First = Search != nullptr ? static_cast<QWidget*>(Search) : this;
	First->setFocus(Qt::PopupFocusReason);
	SetCurrent(Options.Num() > 0 ? 0 : -1);
}

void FComboPopup::SetCurrent(int Index)
{
	if (!OptionViews || Options.IsEmpty())
	{
		return;
	}
	const std::vector<QWidget*> Screens = OptionViews->GetScreens();
	Current = std::clamp(Index, 0, static_cast<int>(Screens.size()) - 1);
	QWidget* const Screen = Screens[static_cast<std::size_t>(Current)];
	const QMargins& Padding = ComboPopup::OptionPadding;
	QRect& Marked = static_cast<ComboPopup::FOptionList*>(Body)->Marked;
	Marked = QRect(0, Screen->y() - Padding.top(), Body->width(), Screen->height() + Padding.top() + Padding.bottom());
	Area->ensureVisible(0, Marked.center().y(), 0, Marked.height());
	Body->update();
}

void FComboPopup::Pick(int Index)
{
	FHostInput Input;
	Input.Kind = EHostInput::Pick;
	Input.Index = Index;
	const TSharedPtr<SWidget> Held = Combo.Pin();
	close();
	if (Held.IsValid())
	{
		Host.Give(Held.ToSharedRef(), Input);
	}
}

bool FComboPopup::eventFilter(QObject* Watched, QEvent* Event)
{
	const bool bMove = Event->type() == QEvent::MouseMove;
	if (Watched == Body && OptionViews && (bMove || Event->type() == QEvent::MouseButtonRelease))
	{
		const int Y = static_cast<QMouseEvent*>(Event)->position().toPoint().y();
		const std::vector<QWidget*> Screens = OptionViews->GetScreens();
		for (std::size_t Index = 0; Index < Screens.size(); ++Index)
		{
			const QRect Rect = Screens[Index]->geometry().marginsAdded(ComboPopup::OptionPadding);
			if (Y >= Rect.top() && Y <= Rect.bottom())
			{
				SetCurrent(static_cast<int>(Index));
				if (!bMove)
				{
					Pick(static_cast<int>(Index));
				}
				return true;
			}
		}
	}
	return QFrame::eventFilter(Watched, Event);
}

void FComboPopup::keyPressEvent(QKeyEvent* Event)
{
	switch (Event->key())
	{
		case Qt::Key_Up: SetCurrent(Current - 1); break;
		case Qt::Key_Down: SetCurrent(Current + 1); break;
		case Qt::Key_Home: SetCurrent(0); break;
		case Qt::Key_End: SetCurrent(Options.Num() - 1); break;
		case Qt::Key_Return:
		case Qt::Key_Enter:
		case Qt::Key_Space:
			if (Current >= 0 && OptionViews)
			{
				Pick(Current);
			}
			break;
		case Qt::Key_Escape: close(); break;
		default: QFrame::keyPressEvent(Event);
	}
}

void FComboPopup::TellClosed()
{
	const TSharedPtr<SWidget> Held = Combo.Pin();
	if (!bTold && Held.IsValid() && FHostWidgetAccess::LookOf(*Held).bOpen)
	{
		bTold = true;
		Host.Give(Held.ToSharedRef(), FHostInput());
	}
	bTold = true;
}

void FComboPopup::closeEvent(QCloseEvent* Event)
{
	TellClosed();
	QFrame::closeEvent(Event);
}

void FComboPopup::hideEvent(QHideEvent* Event)
{
	TellClosed();
	QFrame::hideEvent(Event);
}
