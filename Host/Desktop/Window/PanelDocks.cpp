// Copyright Velmorant. All Rights Reserved.

#include "Window/PanelDocks.h"

#include "Editor.h"
#include "EditorUtilitySubsystem.h"
#include "HostSettings.h"
#include "HostTabs.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Widgets/WidgetRoot.h"
#include "Window/WindowServices.h"

#include <algorithm>

namespace PanelDocks
{
	static const int PanelMargin = 16;
	static const int SettingsMargin = 6; // around a grid that has margins of its own
	static const int FirstWidth = 420;

	/** Whoever opened a panel goes on in it. */
	void FocusFirst(const QWidget& Root)
	{
		for (QWidget* Each = Root.nextInFocusChain(); Each != &Root; Each = Each->nextInFocusChain())
		{
			if (Root.isAncestorOf(Each) && Each->isVisible() && Each->isEnabled() && (Each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
			{
				Each->setFocus(Qt::OtherFocusReason);
				return;
			}
		}
	}

	/** Tells when somebody closes it. */
	class FPanelDock : public QDockWidget
	{
	public:
		using QDockWidget::QDockWidget;

		std::function<void()> OnClosed;

	protected:
		virtual void closeEvent(QCloseEvent* Event) override
		{
			QDockWidget::closeEvent(Event);
			if (OnClosed)
			{
				OnClosed();
			}
		}
	};
}

FPanelDocks::FPanelDocks(IWindowServices& InServices, QMainWindow& InWindow)
	: QObject(&InWindow)
	, Services(InServices)
	, Window(InWindow)
{
}

std::vector<FPanelDocks::FOpen> FPanelDocks::FindOpen() const
{
	std::vector<FOpen> Open;
	AddTabs(Open);
	AddFreePanels(Open);
	AddSettings(Open);
	AddDetails(Open);
	return Open;
}

void FPanelDocks::AddTabs(std::vector<FOpen>& InOutOpen) const
{
	for (const FHostTab& Tab : HostTabs::GetOpen())
	{
		FOpen Open;
		Open.Name = QStringLiteral("Tab.") + QtText::From(Tab.Id);
		Open.Title = QtText::MakeTitle(QtText::From(Tab.Label));
		Open.Margin = PanelDocks::PanelMargin;
		Open.Find = [Id = Tab.Id] { return HostTabs::Find(Id.ToString()).Content; };
		Open.Close = [Id = Tab.Id] { GEditor->GetEditorSubsystem<UEditorUtilitySubsystem>()->CloseTabByID(Id); };
		InOutOpen.push_back(Open);
	}
}

/** Panels that scripts open outside any tab. */
void FPanelDocks::AddFreePanels(std::vector<FOpen>& InOutOpen) const
{
	FPanelHost& Panels = Services.GetEditor().GetSession().GetPanels();
	for (const FPanelHost::FPanel& Panel : Panels.GetAll())
	{
		if (!Panel.Tab.IsNone())
		{
			continue;
		}
		FOpen Open;
		Open.Name = QStringLiteral("Panel.") + QtText::From(Panel.Name);
		Open.Title = QtText::MakeTitle(QtText::From(Panel.Name));
		Open.Margin = PanelDocks::PanelMargin;
		Open.Find = [&Panels, Name = Panel.Name]() -> TSharedPtr<SWidget> {
			const FPanelHost::FPanel* const Found = Panels.Find(Name);
			return Found != nullptr ? Found->Content : nullptr;
		};
		Open.Close = [&Panels, Name = Panel.Name] { Panels.Close(Name); };
		InOutOpen.push_back(Open);
	}
}

void FPanelDocks::AddSettings(std::vector<FOpen>& InOutOpen) const
{
	const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
	if (Page.IsSet())
	{
		FOpen Open;
		Open.Name = QStringLiteral("Settings");
		Open.Margin = PanelDocks::SettingsMargin;
		Open.Title = tr("Settings: %1").arg(QtText::MakeTitle(QtText::From(Page->Address.Section)));
		Open.Find = [] {
			const TOptional<HostSettings::FOpenPage> Shown = HostSettings::GetOpenPage();
			return Shown.IsSet() ? Shown->Content : TSharedPtr<SWidget>();
		};
		Open.Close = [] { HostSettings::Close(); };
		InOutOpen.push_back(Open);
	}
}

/** Details panels that scripts open. */
void FPanelDocks::AddDetails(std::vector<FOpen>& InOutOpen) const
{
	FDetailsPanels& Details = Services.GetEditor().GetSession().GetDetails();
	for (const FString& Name : Details.GetNames())
	{
		FOpen Open;
		Open.Name = QStringLiteral("Details.") + QtText::From(Name);
		Open.Title = tr("Details: %1").arg(QtText::From(Name));
		Open.Area = Qt::RightDockWidgetArea;
		Open.Beside = QStringLiteral("Details");
		Open.Find = [&Details, Name] {
			FHostDetailsView* const View = Details.Find(Name);
			return View != nullptr ? TSharedPtr<SWidget>(View->GetWidget()) : TSharedPtr<SWidget>();
		};
		Open.Close = [&Details, Name] { Details.Close(Name); };
		InOutOpen.push_back(Open);
	}
}

void FPanelDocks::Refresh()
{
	const std::vector<FOpen> All = FindOpen();
	if (Widths)
	{
		Widths->Apply(Window);
		Widths.reset();
	}
	FDockWidths Now = FDockWidths::Measure(Window);
	bool bMoved = DropClosed(All);
	for (const FOpen& Open : All)
	{
		QPointer<QDockWidget>& Dock = Docks[Open.Name];
		if (!Dock)
		{
			Dock = MakeDock(Open);
			bMoved = true;
		}
		if (Dock->windowTitle() != Open.Title)
		{
			Dock->setWindowTitle(Open.Title);
		}
	}
	if (bMoved)
	{
		Now.SuggestFor(Qt::LeftDockWidgetArea, PanelDocks::FirstWidth);
		Now.Apply(Window);
		Widths = Now;
	}
}

bool FPanelDocks::DropClosed(const std::vector<FOpen>& All)
{
	bool bAny = false;
	for (auto Each = Docks.begin(); Each != Docks.end();)
	{
		if (std::any_of(All.begin(), All.end(), [&Each](const FOpen& Open) { return Open.Name == Each->first; }))
		{
			++Each;
			continue;
		}
		bAny = true;
		if (Each->second)
		{
			Each->second->hide(); // takes no room any more; it may be just telling that it was closed
			Each->second->deleteLater();
		}
		Each = Docks.erase(Each);
	}
	return bAny;
}

QDockWidget* FPanelDocks::MakeDock(const FOpen& Open)
{
	PanelDocks::FPanelDock* const Dock = new PanelDocks::FPanelDock(Open.Title, &Window);
	Dock->setObjectName(Open.Name);
	QScrollArea* const Area = new QScrollArea(Dock);
	Area->setFrameShape(QFrame::NoFrame);
	Area->setWidgetResizable(true);
	FWidgetRoot* const Root = new FWidgetRoot(Services, Open.Find);
	Root->layout()->setContentsMargins(Open.Margin, Open.Margin, Open.Margin, Open.Margin);
	Area->setWidget(Root);
	Dock->setWidget(Area);
	Dock->OnClosed = [this, Close = Open.Close] {
		Services.GetEditor().Do(Close);
		Services.RequestFrame();
	};
	if (!Window.restoreDockWidget(Dock))
	{
		Window.addDockWidget(Open.Area, Dock);
		PutBeside(*Dock, Open);
	}
	Dock->show();
	Dock->raise();
	QTimer::singleShot(0, Root, [Root] { PanelDocks::FocusFirst(*Root); });
	return Dock;
}

void FPanelDocks::PutBeside(QDockWidget& Dock, const FOpen& Open)
{
	QDockWidget* Neighbour = nullptr;
	for (QDockWidget* const Other : Window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
	{
		const bool bThere = Other != &Dock && !Other->isFloating() && !Other->isHidden() && Window.dockWidgetArea(Other) == Open.Area;
		if (bThere && (Neighbour == nullptr || Other->objectName() == Open.Beside))
		{
			Neighbour = Other;
		}
	}
	if (Neighbour != nullptr)
	{
		Window.tabifyDockWidget(Neighbour, &Dock);
	}
}

QWidget* FPanelDocks::FindContent(const FString& Name)
{
	QStringList Wanted = {QStringLiteral("Panel."), QStringLiteral("Details."), QStringLiteral("Tab.")};
	for (QString& Each : Wanted)
	{
		Each += QtText::From(Name);
	}
	if (const FPanelHost::FPanel* const Panel = Services.GetEditor().GetSession().GetPanels().Find(Name))
	{
		Wanted.append(QStringLiteral("Tab.") + QtText::From(Panel->Tab));
	}
	const TOptional<HostSettings::FOpenPage> Page = HostSettings::GetOpenPage();
	if (Page.IsSet() && Page->Address.Section.ToString().Equals(Name, ESearchCase::IgnoreCase))
	{
		Wanted.append(QStringLiteral("Settings"));
	}
	for (const auto& Each : Docks)
	{
		if (Each.second && Wanted.contains(Each.first, Qt::CaseInsensitive))
		{
			return static_cast<QScrollArea*>(Each.second->widget())->widget();
		}
	}
	return nullptr;
}

void FPanelDocks::LetGo()
{
	for (const auto& Each : Docks)
	{
		delete Each.second;
	}
	Docks.clear();
}
