// Copyright Velmorant. All Rights Reserved.

#include "Window/DockTabs.h"

#include <algorithm>

namespace DockTabs
{
	static const char* const KnownMark = "velmorantTabs"; // a property of the bars that were made ours

	/** In place of a title that a tab shows already. */
	class FNoTitle : public QWidget
	{
	public:
		using QWidget::QWidget;

		virtual QSize sizeHint() const override { return QSize(0, 0); }
		virtual QSize minimumSizeHint() const override { return QSize(0, 0); }
	};
}

FDockTabs::FDockTabs(QMainWindow& InWindow)
	: QObject(&InWindow)
	, Window(InWindow)
{
}

void FDockTabs::Refresh()
{
	for (QDockWidget* const Dock : Window.findChildren<QDockWidget*>())
	{
		FitTitle(*Dock);
	}
	for (QTabBar* const Bar : Window.findChildren<QTabBar*>())
	{
		if (!Bar->property(DockTabs::KnownMark).toBool())
		{
			FitBar(*Bar);
		}
	}
}

void FDockTabs::FitTitle(QDockWidget& Dock) const
{
	const QList<QDockWidget*> Others = Window.tabifiedDockWidgets(&Dock); // also those that are closed
	const bool bInTabs = !Dock.isFloating() && std::any_of(Others.begin(), Others.end(), [](const QDockWidget* Other) { return !Other->isHidden(); });
	if (bInTabs && Dock.titleBarWidget() == nullptr)
	{
		Dock.setTitleBarWidget(new DockTabs::FNoTitle(&Dock));
	}
	else if (!bInTabs && Dock.titleBarWidget() != nullptr)
	{
		QWidget* const NoTitle = Dock.titleBarWidget();
		Dock.setTitleBarWidget(nullptr);
		NoTitle->deleteLater();
	}
}

/** The window keeps its bars and uses them again for other docks. */
void FDockTabs::FitBar(QTabBar& Bar)
{
	Bar.setProperty(DockTabs::KnownMark, true);
	Bar.setTabsClosable(true);
	Bar.setElideMode(Qt::ElideRight);
	Bar.setFocusPolicy(Qt::TabFocus);
	Bar.setAccessibleName(tr("Tabs"));
	connect(&Bar, &QTabBar::tabCloseRequested, this, [this, &Bar](int Index) { CloseTab(Bar, Index); });
}

/** Qt keeps in a tab's data which dock it is of, as a number. */
void FDockTabs::CloseTab(const QTabBar& Bar, int Index) const
{
	const quintptr Wanted = qvariant_cast<quintptr>(Bar.tabData(Index));
	for (QDockWidget* const Dock : Window.findChildren<QDockWidget*>())
	{
		if (reinterpret_cast<quintptr>(Dock) == Wanted)
		{
			Dock->close();
			return;
		}
	}
}
