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
	static const int PanelMargin = 10;
	static const int FirstWidth = 420;

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
	for (auto Each = Docks.begin(); Each != Docks.end();)
	{
		const bool bOpen = std::any_of(All.begin(), All.end(), [&Each](const FOpen& Open) { return Open.Name == Each->first; });
		if (!bOpen && Each->second)
		{
			Each->second->deleteLater();
		}
		Each = bOpen ? std::next(Each) : Docks.erase(Each);
	}
	for (const FOpen& Open : All)
	{
		QPointer<QDockWidget>& Dock = Docks[Open.Name];
		if (!Dock)
		{
			Dock = MakeDock(Open);
		}
		if (Dock->windowTitle() != Open.Title)
		{
			Dock->setWindowTitle(Open.Title);
		}
	}
}

QDockWidget* FPanelDocks::MakeDock(const FOpen& Open)
{
	PanelDocks::FPanelDock* const Dock = new PanelDocks::FPanelDock(Open.Title, &Window);
	Dock->setObjectName(Open.Name);
	QScrollArea* const Area = new QScrollArea(Dock);
	Area->setFrameShape(QFrame::NoFrame);
	Area->setWidgetResizable(true);
	FWidgetRoot* const Root = new FWidgetRoot(Services, Open.Find);
	Root->setContentsMargins(PanelDocks::PanelMargin, PanelDocks::PanelMargin, PanelDocks::PanelMargin, PanelDocks::PanelMargin);
	Root->layout()->setContentsMargins(PanelDocks::PanelMargin, PanelDocks::PanelMargin, PanelDocks::PanelMargin, PanelDocks::PanelMargin);
	Area->setWidget(Root);
	Dock->setWidget(Area);
	Dock->OnClosed = [this, Close = Open.Close] {
		Services.GetEditor().Do(Close);
		Services.RequestFrame();
	};
	if (!Window.restoreDockWidget(Dock))
	{
		Window.addDockWidget(Open.Area, Dock);
		Window.resizeDocks({Dock}, {PanelDocks::FirstWidth}, Qt::Horizontal);
		for (QDockWidget* const Other : Window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
		{
			if (Other != Dock && !Other->isFloating() && !Other->isHidden() && Window.dockWidgetArea(Other) == Open.Area)
			{
				Window.tabifyDockWidget(Other, Dock);
				break;
			}
		}
	}
	Dock->show();
	Dock->raise();
	return Dock;
}

void FPanelDocks::LetGo()
{
	for (const auto& Each : Docks)
	{
		delete Each.second;
	}
	Docks.clear();
}
