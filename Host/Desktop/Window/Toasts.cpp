// Copyright Velmorant. All Rights Reserved.

#include "Window/Toasts.h"

#include "HostClock.h"
#include "Look/Brushes.h"
#include "Look/EditorStyle.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Styling/SlateBrush.h"
#include "Widgets/ThrobberView.h"
#include "Window/WindowServices.h"

#include <algorithm>
#include <cmath>

namespace Toasts
{
	static const int Width = 360;
	static const int Gap = 8;
	static const int FromEdge = 16;
	static const int ImageSize = 40;

	/** A sign for the state: a tick, a cross, or nothing. */
	class FStateSign : public QWidget
	{
	public:
		using QWidget::QWidget;

		SNotificationItem::ECompletionState State = SNotificationItem::CS_None;

		virtual QSize sizeHint() const override { return QSize(20, 20); }

	protected:
		virtual void paintEvent(QPaintEvent*) override
		{
			const bool bGood = State == SNotificationItem::CS_Success;
			QPainter Painter(this);
			Painter.setRenderHint(QPainter::Antialiasing);
			Painter.setPen(Qt::NoPen);
			Painter.setBrush(bGood ? Theme::GetColors().Good : Theme::GetColors().Bad);
			const QPointF Middle = QRectF(rect()).center();
			Painter.drawEllipse(Middle, 9.0, 9.0);
			Painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
			if (bGood)
			{
				Painter.drawPolyline(QPolygonF({Middle + QPointF(-4.0, 0.5), Middle + QPointF(-1.0, 3.5), Middle + QPointF(4.5, -3.5)}));
				return;
			}
			Painter.drawLine(Middle + QPointF(-3.2, -3.2), Middle + QPointF(3.2, 3.2));
			Painter.drawLine(Middle + QPointF(3.2, -3.2), Middle + QPointF(-3.2, 3.2));
		}
	};
}

/** One notification. */
class FToast : public QFrame
{
public:
	FToast(IWindowServices& InServices, const HostNotifications::FRecord& InRecord, QWidget* Parent)
		: QFrame(Parent)
		, Services(InServices)
		, Record(InRecord)
		, Title(new QLabel(this))
		, SubText(new QLabel(this))
		, Image(new QLabel(this))
		, Sign(new Toasts::FStateSign(this))
		, Throbber(new FThrobber(this))
		, Buttons(new QHBoxLayout)
		, Opacity(new QGraphicsOpacityEffect(this))
	{
		setObjectName(QStringLiteral("Toast"));
		setGraphicsEffect(Opacity);
		setAutoFillBackground(false);
		QHBoxLayout* const Row = new QHBoxLayout(this);
		Row->setContentsMargins(14, 12, 14, 12);
		Row->setSpacing(12);
		Row->addWidget(Image, 0, Qt::AlignTop);
		QVBoxLayout* const Column = new QVBoxLayout;
		Column->setSpacing(6);
		QHBoxLayout* const Head = new QHBoxLayout;
		Head->addWidget(Title, 1);
		Head->addWidget(Throbber, 0, Qt::AlignTop);
		Head->addWidget(Sign, 0, Qt::AlignTop);
		Column->addLayout(Head);
		Column->addWidget(SubText);
		Buttons->addStretch(1);
		Column->addLayout(Buttons);
		Row->addLayout(Column, 1);
		for (QLabel* const Label : {Title, SubText})
		{
			Label->setTextFormat(Qt::PlainText);
			Label->setWordWrap(true);
		}
		QFont Bold = Title->font();
		Bold.setBold(true);
		if (Record->bUseLargeFont)
		{
			Bold.setPixelSize(Bold.pixelSize() + 2);
		}
		Title->setFont(Bold);
		ShowImage();
	}

	void Refresh(bool bFading)
	{
		Title->setText(QtText::From(Record->Text));
		SubText->setText(QtText::From(Record->SubText));
		SubText->setVisible(!Record->SubText.IsEmpty());
		const bool bEnded = Record->State == SNotificationItem::CS_Success || Record->State == SNotificationItem::CS_Fail;
		Throbber->setVisible(Record->bUseThrobber && Record->State == SNotificationItem::CS_Pending);
		Sign->setVisible(Record->bUseSuccessFailIcons && bEnded);
		Sign->State = Record->State;
		setAccessibleName(Title->text());
		setAccessibleDescription(SubText->text());
		FitButtons();
		const double Share = bFading ? GetShare() : 1.0;
		Opacity->setOpacity(Share);
		Opacity->setEnabled(Share < 1.0);
		const int Wide = Record->Width.IsSet() ? static_cast<int>(std::lround(Record->Width.GetValue())) : Toasts::Width;
		setFixedWidth(Wide);
		const int High = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(Wide) : layout()->totalSizeHint().height();
		setFixedHeight(High);
	}

protected:
	virtual void paintEvent(QPaintEvent*) override
	{
		QPainter Painter(this);
		Painter.setRenderHint(QPainter::Antialiasing);
		Painter.setPen(Theme::GetColors().FieldLine);
		Painter.setBrush(Theme::GetColors().Header);
		Painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), EditorStyle::Radius + 2, EditorStyle::Radius + 2);
	}

private:
	void ShowImage()
	{
		FSlateBrush Brush;
		Brush.SetResourceName(Record->ImageName);
		const QPixmap Picture = Services.GetBrushes().Find(Brush, QSize(Toasts::ImageSize, Toasts::ImageSize), devicePixelRatioF());
		Image->setPixmap(Picture);
		Image->setVisible(!Picture.isNull());
	}

	/** Those that show in the state it is in. */
	void FitButtons()
	{
		const TArray<FString> Labels = HostNotifications::GetVisibleButtons(*Record);
		if (Labels == ShownButtons)
		{
			return;
		}
		ShownButtons = Labels;
		while (Buttons->count() > 1)
		{
			QLayoutItem* const Item = Buttons->takeAt(1);
			Item->widget()->hide();
			Item->widget()->deleteLater();
			delete Item;
		}
		for (const FString& Label : Labels)
		{
			QPushButton* const Button = new QPushButton(QtText::From(Label), this);
			const FHostNotificationButton* Known = Record->Buttons.FindByPredicate([&Label](const FHostNotificationButton& Each) { return Each.Label.ToString().Equals(Label); });
			Button->setToolTip(Known != nullptr ? QtText::From(Known->ToolTip) : QString());
			connect(Button, &QPushButton::clicked, this, [this, Label] {
				const HostNotifications::FRecord Held = Record;
				FHostInputResult Result;
				Services.GetEditor().Do([&Held, &Label, &Result] { Result = HostNotifications::PressButton(*Held, Label); });
				if (!Result.bDone)
				{
					Services.Tell(tr("Not done: %1 %2").arg(QtText::From(Label), QtText::From(Result.Reason)));
				}
				Services.RequestFrame();
			});
			Buttons->addWidget(Button);
		}
	}

	/** How much of it shows while it comes and goes. */
	double GetShare() const
	{
		const double Now = HostClock::Now();
		double Share = 1.0;
		if (Record->FadeInDuration > 0.0f)
		{
			Share = std::min(Share, (Now - Record->ShownAt) / static_cast<double>(Record->FadeInDuration));
		}
		if (Record->FadeOutAt.IsSet() && Now >= Record->FadeOutAt.GetValue() && Record->FadeOutDuration > 0.0f)
		{
			Share = std::min(Share, 1.0 - (Now - Record->FadeOutAt.GetValue()) / static_cast<double>(Record->FadeOutDuration));
		}
		return std::clamp(Share, 0.0, 1.0);
	}

	IWindowServices& Services;
	HostNotifications::FRecord Record;
	QLabel* Title;
	QLabel* SubText;
	QLabel* Image;
	Toasts::FStateSign* Sign;
	FThrobber* Throbber;
	QHBoxLayout* Buttons;
	QGraphicsOpacityEffect* Opacity;
	TArray<FString> ShownButtons;
};

FToasts::FToasts(IWindowServices& InServices, QWidget& InWindow)
	: QObject(&InWindow)
	, Services(InServices)
	, Window(InWindow)
{
}

void FToasts::Refresh()
{
	std::map<int, FToast*> Standing;
	for (const HostNotifications::FRecord& Record : HostNotifications::GetStanding())
	{
		const auto Known = Shown.find(Record->Id);
		FToast* const Toast = Known != Shown.end() ? Known->second : new FToast(Services, Record, &Window);
		Shown.erase(Record->Id);
		Standing[Record->Id] = Toast;
		Toast->Refresh(bFading);
		if (Toast->isHidden())
		{
			Toast->show();
		}
	}
	LetGo();
	Shown = Standing;
	Stack();
}

void FToasts::LetGo()
{
	for (const auto& Each : Shown)
	{
		Each.second->hide();
		Each.second->deleteLater();
	}
	Shown.clear();
}

bool FToasts::FocusNewest()
{
	for (auto Each = Shown.rbegin(); Each != Shown.rend(); ++Each)
	{
		for (QPushButton* const Button : Each->second->findChildren<QPushButton*>())
		{
			if (Button->isVisible())
			{
				Button->setFocus(Qt::ShortcutFocusReason);
				return true;
			}
		}
	}
	return false;
}

void FToasts::Stack()
{
	int Bottom = Window.height() - Toasts::FromEdge - 28; // above the status line
	for (auto Each = Shown.rbegin(); Each != Shown.rend(); ++Each)
	{
		FToast& Toast = *Each->second;
		Bottom -= Toast.height();
		const QPoint Corner(Window.width() - Toast.width() - Toasts::FromEdge, Bottom);
		if (Toast.pos() != Corner)
		{
			Toast.move(Corner);
		}
		Toast.raise();
		Bottom -= Toasts::Gap;
	}
}
