// Copyright Velmorant. All Rights Reserved.

#include "Window/FixedDocks.h"

#include "Docks/DetailsDock.h"
#include "Window/DockView.h"
#include "Window/WindowServices.h"

#include <algorithm>
#include <map>
#include <utility>

namespace FixedDocks
{
	static const int SideWidth = 430;
	static const int BottomHeight = 300;
	static const double DetailsShare = 0.6; // of the height beside the plan, which they share with the outliner

	int FindHeight(const DockViews::FKind& Kind, Qt::DockWidgetArea Area, int Whole)
	{
		switch (Area)
		{
			case Qt::BottomDockWidgetArea: return BottomHeight;
			case Qt::TopDockWidgetArea: return Whole - BottomHeight;
			default: return static_cast<int>(Whole * (Kind.Stack == 0 ? DetailsShare : 1.0 - DetailsShare));
		}
	}
}

FFixedDocks::FFixedDocks(IWindowServices& InServices, QMainWindow& InWindow)
	: QObject(&InWindow)
	, Services(InServices)
	, Window(InWindow)
{
}

void FFixedDocks::Make()
{
	std::map<std::pair<int, int>, QDockWidget*> FirstOf; // by area and stack
	Docks.reserve(DockViews::GetAll().size()); // their docks' slots point at them
	for (const DockViews::FKind& Kind : DockViews::GetAll())
	{
		QDockWidget* const Dock = new QDockWidget(tr(Kind.Title), &Window);
		Dock->setObjectName(QLatin1String(Kind.Name));
		Window.addDockWidget(Kind.Area, Dock);
		const auto [First, bFirst] = FirstOf.try_emplace({Kind.Area, Kind.Stack}, Dock);
		if (!bFirst)
		{
			Window.tabifyDockWidget(First->second, Dock);
		}
		Dock->setVisible(Kind.bOpenAtFirst);
		FFixedDock& Each = Docks.emplace_back(FFixedDock{&Kind, Dock});
		connect(Dock, &QDockWidget::visibilityChanged, this, [this, &Each](bool bVisible) {
			if (bVisible)
			{
				Fill(Each);
			}
		});
	}
	for (const auto& First : FirstOf)
	{
		First.second->raise();
		Firsts.push_back(First.second);
	}
}

void FFixedDocks::Fill(FFixedDock& Each)
{
	if (Each.View == nullptr)
	{
		Each.View = Each.Kind->Make(Services, Each.Dock);
		Each.Dock->setWidget(Each.View);
		Services.RequestFrame();
	}
}

void FFixedDocks::FillFirst()
{
	for (FFixedDock& Each : Docks)
	{
		if (std::find(Firsts.begin(), Firsts.end(), Each.Dock) != Firsts.end())
		{
			Fill(Each);
		}
	}
}

void FFixedDocks::ArrangeAtFirst()
{
	QList<QDockWidget*> Across;
	QList<int> Widths;
	QList<QDockWidget*> Down;
	QList<int> Heights;
	for (const FFixedDock& Each : Docks)
	{
		const Qt::DockWidgetArea Area = Window.dockWidgetArea(Each.Dock);
		if (!Each.Dock->isVisible())
		{
			continue; // behind another tab, or closed
		}
		Across.append(Each.Dock);
		const bool bAtSide = Area == Qt::RightDockWidgetArea || Area == Qt::LeftDockWidgetArea;
		Widths.append(bAtSide ? FixedDocks::SideWidth : Window.width() - FixedDocks::SideWidth);
		Down.append(Each.Dock);
		Heights.append(FixedDocks::FindHeight(*Each.Kind, Area, Window.height()));
	}
	Window.resizeDocks(Across, Widths, Qt::Horizontal);
	Window.resizeDocks(Down, Heights, Qt::Vertical);
}

void FFixedDocks::Refresh()
{
	for (const FFixedDock& Each : Docks)
	{
		if (Each.View != nullptr && Each.View->isVisible())
		{
			Each.View->Refresh();
		}
	}
}

void FFixedDocks::LetGo()
{
	for (const FFixedDock& Each : Docks)
	{
		if (Each.View != nullptr)
		{
			Each.View->LetGo();
		}
	}
}

void FFixedDocks::Drop()
{
	for (const FFixedDock& Each : std::exchange(Docks, {}))
	{
		Each.Dock->disconnect(this); // going, it tells that it is not seen any more
		delete Each.Dock;
	}
}

void FFixedDocks::Show(const QString& Name)
{
	for (const FFixedDock& Each : Docks)
	{
		if (Name == QLatin1String(Each.Kind->Name))
		{
			Each.Dock->show();
			Each.Dock->raise();
		}
	}
	Services.RequestFrame();
}

void FFixedDocks::Inspect(const TArray<UObject*>& Objects)
{
	for (FFixedDock& Each : Docks)
	{
		if (QLatin1String(Each.Kind->Name) != QLatin1String("Details"))
		{
			continue;
		}
		Fill(Each);
		if (FDetailsDock* const Details = dynamic_cast<FDetailsDock*>(Each.View))
		{
			Details->Inspect(Objects);
		}
	}
}

std::vector<QDockWidget*> FFixedDocks::GetAll() const
{
	std::vector<QDockWidget*> All;
	for (const FFixedDock& Each : Docks)
	{
		All.push_back(Each.Dock);
	}
	return All;
}
