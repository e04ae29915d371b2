// Copyright Velmorant. All Rights Reserved.

#include "Window/DockViews.h"

#include "Docks/ContentBrowserDock.h"
#include "Docks/DetailsDock.h"
#include "Docks/NotificationHistoryDock.h"
#include "Docks/OutlinerDock.h"
#include "Docks/OutputLogDock.h"
#include "Docks/PlacementDock.h"
#include "Docks/PlanDock.h"
#include "Docks/ProjectSetupDock.h"
#include "Docks/VariantManagerDock.h"
#include "Docks/WelcomeDock.h"

namespace DockViews
{
	template<typename DockType>
	FDockView* MakeOne(IWindowServices& Services, QWidget* Parent)
	{
		return new DockType(Services, Parent);
	}

	const std::vector<FKind>& GetAll()
	{
		static const std::vector<FKind> Kinds = {
			{"Plan", "Plan", Qt::TopDockWidgetArea, true, &MakeOne<FPlanDock>},
			{"Outliner", "Outliner", Qt::RightDockWidgetArea, true, &MakeOne<FOutlinerDock>, 1},
			{"Placement", "Placement", Qt::RightDockWidgetArea, true, &MakeOne<FPlacementDock>, 1},
			{"Welcome", "Welcome", Qt::TopDockWidgetArea, false, &MakeOne<FWelcomeDock>},
			{"Details", "Details", Qt::RightDockWidgetArea, true, &MakeOne<FDetailsDock>},
			{"ContentBrowser", "Content Browser", Qt::BottomDockWidgetArea, true, &MakeOne<FContentBrowserDock>},
			{"VariantManager", "Variant Manager", Qt::RightDockWidgetArea, true, &MakeOne<FVariantManagerDock>},
			{"Notifications", "Notifications", Qt::BottomDockWidgetArea, true, &MakeOne<FNotificationHistoryDock>},
			{"OutputLog", "Output log", Qt::BottomDockWidgetArea, true, &MakeOne<FOutputLogDock>},
			{"ProjectSetup", "Project settings", Qt::TopDockWidgetArea, false, &MakeOne<FProjectSetupDock>},
		};
		return Kinds;
	}
}
