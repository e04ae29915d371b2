// Copyright Velmorant. All Rights Reserved.

#include "Widgets/MenuPopup.h"

#include "Look/Brushes.h"
#include "QtText.h"
#include "Widgets/WidgetRoot.h"
#include "Widgets/WidgetView.h"

namespace MenuPopup
{
	static const QMargins CustomPadding(12, 2, 12, 2);

	void AddEntry(QMenu& Target, FSeenWidget& Seen, IViewHost& Host)
	{
		const FHostWidgetDescription& Description = Seen.GetDescription();
		QAction* const Action = Target.addAction(QtText::From(Description.Label).replace(QLatin1Char('&'), QLatin1String("&&")));
		Action->setObjectName(QtText::From(Description.Name));
		Action->setToolTip(QtText::From(Description.ToolTip));
		Action->setEnabled(Description.bEnabled);
		if (Description.Checked.IsSet())
		{
			Action->setCheckable(true);
			Action->setChecked(Description.Checked.GetValue() == ECheckBoxState::Checked);
		}
		if (Seen.GetLook().Brush.IsSet())
		{
			Action->setIcon(Host.GetBrushes().FindIcon(Seen.GetLook().Brush.GetValue()));
		}
		QObject::connect(Action, &QAction::triggered, &Target, [&Host, Weak = TWeakPtr<SWidget>(Seen.GetWidget())] {
			if (const TSharedPtr<SWidget> Entry = Weak.Pin())
			{
				Host.Give(Entry.ToSharedRef(), FHostInput());
			}
		});
	}

	/** An entry that opens a menu of its own beside this one. */
	void AddSubMenu(QMenu& Target, FSeenWidget& Seen, IViewHost& Host)
	{
		QMenu* const Sub = Target.addMenu(QtText::From(Seen.GetDescription().Label));
		Sub->menuAction()->setObjectName(QtText::From(Seen.GetDescription().Name));
		Sub->menuAction()->setEnabled(Seen.GetDescription().bEnabled);
		QObject::connect(Sub, &QMenu::aboutToShow, Sub, [Sub, &Host, Weak = TWeakPtr<SWidget>(Seen.GetWidget())] {
			const TSharedPtr<SWidget> Opener = Weak.Pin();
			Sub->clear();
			if (!Opener.IsValid())
			{
				return;
			}
			FSeenWidget Before(Opener.ToSharedRef());
			if (Before.FindPart(EHostPart::Menu) == nullptr)
			{
				Host.Give(Opener.ToSharedRef(), FHostInput());
			}
			FSeenWidget Opened(Opener.ToSharedRef());
			if (const FHostWidgetPart* Open = Opened.FindPart(EHostPart::Menu))
			{
				FMenuPopup::Fill(*Sub, Open->Widget, Host);
			}
		});
	}

	void AddWidget(QMenu& Target, const TSharedRef<SWidget>& Widget, IViewHost& Host)
	{
		QWidgetAction* const Action = new QWidgetAction(&Target);
		QWidget* const Frame = new QWidget(&Target);
		QVBoxLayout* const Layout = new QVBoxLayout(Frame);
		Layout->setContentsMargins(CustomPadding);
		Layout->addWidget(new FWidgetRoot(
			Host, [Weak = TWeakPtr<SWidget>(Widget)] { return Weak.Pin(); }, Frame));
		Action->setDefaultWidget(Frame);
		Target.addAction(Action);
	}

	/** The section around it has said it. */
	bool IsHeading(const FHostWidgetDescription& Description)
	{
		return Description.bTransparent && Description.bSealed;
	}

	void Add(QMenu& Target, const TSharedRef<SWidget>& Widget, IViewHost& Host)
	{
		FSeenWidget Seen(Widget);
		if (!Seen.GetDescription().bVisible || IsHeading(Seen.GetDescription()))
		{
			return;
		}
		const FString& Role = Seen.GetDescription().Role;
		if (Role == TEXT("section"))
		{
			if (!Seen.GetDescription().Label.IsEmpty())
			{
				Target.addSection(QtText::From(Seen.GetDescription().Label));
			}
			else if (!Target.isEmpty())
			{
				Target.addSeparator();
			}
			FMenuPopup::Fill(Target, Widget, Host);
		}
		else if (Role == TEXT("entry"))
		{
			AddEntry(Target, Seen, Host);
		}
		else if (Role == TEXT("menu button"))
		{
			AddSubMenu(Target, Seen, Host);
		}
		else
		{
			AddWidget(Target, Widget, Host);
		}
	}
}

FMenuPopup::FMenuPopup(IViewHost& InHost, const TSharedRef<SWidget>& InMenu, const TSharedRef<SWidget>& InOpener, QWidget& InParent)
	: QMenu(&InParent)
	, Host(InHost)
	, Opener(InOpener)
{
	setToolTipsVisible(true);
	setAttribute(Qt::WA_DeleteOnClose);
	Fill(*this, InMenu, Host);
}

void FMenuPopup::Fill(QMenu& Target, const TSharedRef<SWidget>& Menu, IViewHost& Host)
{
	for (const TSharedRef<SWidget>& Child : FHostWidgetAccess::ChildrenOf(*Menu))
	{
		MenuPopup::Add(Target, Child, Host);
	}
}

void FMenuPopup::hideEvent(QHideEvent* Event)
{
	// Later: an entry that was clicked hides the menu before it runs, and closes all menus itself.
	QTimer::singleShot(0, &Host.GetContext(), [&Where = Host, Weak = Opener] {
		const TSharedPtr<SWidget> Held = Weak.Pin();
		if (Held.IsValid() && FHostWidgetAccess::LookOf(*Held).bOpen)
		{
			Where.Give(Held.ToSharedRef(), FHostInput());
		}
	});
	QMenu::hideEvent(Event);
}
