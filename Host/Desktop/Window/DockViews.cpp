// Copyright Velmorant. All Rights Reserved.

#include "Window/DockViews.h"

#include "Docks/ContentBrowserDock.h"
#include "Docks/DetailsDock.h"
#include "Docks/NotificationHistoryDock.h"
#include "Docks/VariantManagerDock.h"
#include "Docks/WelcomeDock.h"

namespace DockViews
{
	template<typename DockType>
	static FDockView* MakeOne(IWindowServices& Services, QWidget* Parent)
	{
		return new DockType(Services, Parent);
	}

	const std::vector<FKind>& GetAll()
	{
		static const std::vector<FKind> Kinds = {
			{"Welcome", "Welcome", Qt::TopDockWidgetArea, false, &MakeOne<FWelcomeDock>},
			{"Details", "Details", Qt::RightDockWidgetArea, true, &MakeOne<FDetailsDock>},
			{"ContentBrowser", "Content Browser", Qt::BottomDockWidgetArea, true, &MakeOne<FContentBrowserDock>},
			{"VariantManager", "Variant Manager", Qt::RightDockWidgetArea, true, &MakeOne<FVariantManagerDock>},
			{"Notifications", "Notifications", Qt::BottomDockWidgetArea, true, &MakeOne<FNotificationHistoryDock>},
		};
		return Kinds;
	}
}
