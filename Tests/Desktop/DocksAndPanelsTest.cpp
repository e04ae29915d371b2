// Copyright Velmorant. All Rights Reserved.
// Each dock, panel, menu and picker once: opened, used, searched in vain, closed.

#include "DesktopFixture.h"

#include "HostNotifications.h"
#include "Level/LevelActors.h"
#include "QtText.h"
#include "VelmorantLevelActors.h"
#include "Widgets/ItemsView.h"
#include "Window/DockViews.h"

class DocksAndPanels : public FDesktopTest
{
protected:
	/** Those that hold a panel of the toolkit. */
	QList<QDockWidget*> FindPanels()
	{
		QList<QDockWidget*> Panels;
		for (QDockWidget* const Each : GetWindow().findChildren<QDockWidget*>())
		{
			if (!Each->isHidden() && (Each->objectName().startsWith(QStringLiteral("Tab.")) || Each->objectName().startsWith(QStringLiteral("Panel."))))
			{
				Panels.append(Each);
			}
		}
		return Panels;
	}

	QMenu& FindMenu(const QString& Title)
	{
		for (QMenu* const Menu : GetWindow().findChildren<QMenu*>())
		{
			if (Menu->title().remove(QLatin1Char('&')) == Title)
			{
				Q_EMIT Menu->aboutToShow();
				return *Menu;
			}
		}
		throw std::runtime_error("no menu is called " + Title.toStdString());
	}

	void Bring(const QString& Dock)
	{
		FindDock(Dock).show();
		FindDock(Dock).raise();
		Let(0.0);
	}

	/** Types a text that nothing has. @return what the label says then */
	QString SearchInVain(const char* Field, const char* Label)
	{
		Type(Field, QStringLiteral("no such thing"));
		return Find<QLabel>(Label).text();
	}

	AVlmInteractiveSpot& InspectSpot()
	{
		for (AActor* const Actor : LevelActors::GetAll())
		{
			if (AVlmInteractiveSpot* const Spot = Cast<AVlmInteractiveSpot>(Actor))
			{
				LevelActors::Select({Spot});
				Let(0.0);
				Let(0.0);
				return *Spot;
			}
		}
		throw std::runtime_error("the level has no spot");
	}
};

TEST_F(DocksAndPanels, EachDockShowsWhatItIsForWheneverItIsOpened)
{
	const std::pair<const char*, const char*> Contents[] = {{"Plan", "PlanView"}, {"Outliner", "OutlinerSearch"}, {"Placement", "PlacementSearch"}, {"Welcome", "WelcomeClose"}, {"Details", "Details"}, {"ContentBrowser", "ContentItems"},
		{"VariantManager", "VariantsEmpty"}, {"Notifications", "NotificationHistory"}, {"OutputLog", "OutputLogSearch"}, {"ProjectSetup", "CollisionVerdict"}};
	ASSERT_EQ(std::size(Contents), DockViews::GetAll().size()) << "a dock that is not tried";
	for (const bool bAgain : {false, true}) // and on the next day, as it was left
	{
		Open();
		for (const auto& [Dock, Content] : Contents)
		{
			SCOPED_TRACE(Dock);
			QDockWidget& Each = FindDock(QLatin1String(Dock));
			for (int Round = 0; Round < 2; ++Round)
			{
				Each.close();
				Let(0.0);
				EXPECT_FALSE(Each.isVisible());
				Bring(QLatin1String(Dock));
				EXPECT_NE(FindShown(Content), nullptr) << "round " << Round << (bAgain ? ", on the next day" : "");
			}
		}
		EXPECT_TRUE(GetWindow().close());
		Close();
	}
}

TEST_F(DocksAndPanels, EachPanelOpensOnceFromTheMenuAndIsGoneOnceClosed)
{
	Open();
	QStringList Names;
	for (const QAction* const Entry : FindMenu(QStringLiteral("Panels")).actions())
	{
		Names.append(Entry->text());
	}
	ASSERT_GE(Names.size(), 3);
	for (const QString& Name : Names)
	{
		SCOPED_TRACE(Name.toStdString());
		for (int Time = 0; Time < 2; ++Time)
		{
			for (QAction* const Entry : FindMenu(QStringLiteral("Panels")).actions())
			{
				if (Entry->text() == Name)
				{
					Entry->trigger();
					break;
				}
			}
			Let(0.5);
			ASSERT_EQ(FindPanels().size(), 1) << "after being asked for " << Time + 1 << " times";
		}
		QDockWidget& Panel = *FindPanels()[0];
		EXPECT_FALSE(Panel.windowTitle().isEmpty());
		EXPECT_FALSE(TextsIn(Panel).isEmpty() && Panel.findChildren<QAbstractButton*>().isEmpty()) << "it shows nothing";
		Panel.close();
		Let(0.0);
		EXPECT_TRUE(FindPanels().isEmpty());
	}
}

TEST_F(DocksAndPanels, SearchingInVainSaysSo)
{
	Open();
	EXPECT_TRUE(SearchInVain("OutlinerSearch", "OutlinerEmpty").startsWith(QStringLiteral("No actor is called like that")));
	Bring(QStringLiteral("Placement"));
	EXPECT_TRUE(SearchInVain("PlacementSearch", "PlacementHint").startsWith(QStringLiteral("Nothing that can be placed")));
	Bring(QStringLiteral("OutputLog"));
	EXPECT_TRUE(SearchInVain("OutputLogSearch", "OutputLogState").startsWith(QStringLiteral("No line is like that")));

	GetWindow().findChild<QAction*>(QStringLiteral("CommandPalette"))->trigger();
	QWidget& Palette = Find("CommandPalette");
	QListWidget& Found = *Palette.findChild<QListWidget*>();
	const int NumAll = Found.count();
	QLineEdit& Field = *Palette.findChild<QLineEdit*>();
	QTest::keyClicks(&Field, QStringLiteral("no such thing"));
	ASSERT_EQ(Found.count(), 1);
	EXPECT_TRUE(Found.item(0)->text().startsWith(QStringLiteral("No command")));
	QTest::keyClick(&Field, Qt::Key_Return);
	EXPECT_NE(FindShown("CommandPalette"), nullptr) << "there was nothing to do";
	Field.clear();
	EXPECT_EQ(Found.count(), NumAll);
	QTest::keyClick(&Field, Qt::Key_Escape);
	EXPECT_EQ(FindShown("CommandPalette"), nullptr);
}

TEST_F(DocksAndPanels, TheLogIsCopiedAndHidden)
{
	Open();
	Let(1.0);
	Bring(QStringLiteral("OutputLog"));
	const QAbstractItemModel& Lines = *Find<QListView>("OutputLog").model();
	ASSERT_GT(Lines.rowCount(), 0);
	Click("OutputLogCopy");
	EXPECT_EQ(QGuiApplication::clipboard()->text().count(QLatin1Char('\n')) + 1, Lines.rowCount());
	EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(Lines.index(0, 0).data().toString()));
	Click("OutputLogClear");
	EXPECT_EQ(Lines.rowCount(), 0);
}

TEST_F(DocksAndPanels, NotificationsStayInTheirHistory)
{
	Open();
	Let(1.0);
	HostNotifications::DropStanding();
	Bring(QStringLiteral("Notifications"));
	const QTreeWidget& History = Find<QTreeWidget>("NotificationHistory");
	ASSERT_EQ(History.topLevelItemCount(), 1);
	EXPECT_EQ(History.topLevelItem(0)->text(2), QStringLiteral("Velmorant: Missing UnitVolume Profile"));
}

TEST_F(DocksAndPanels, EnterPlacesWhatIsChosenAndNothingForACategory)
{
	Open();
	Bring(QStringLiteral("Placement"));
	QTreeWidget& List = Find<QTreeWidget>("Placement");
	QTreeWidgetItem* const Category = List.topLevelItem(0);
	ASSERT_GT(Category->childCount(), 0);
	const int32 NumBefore = LevelActors::GetAll().Num();
	for (const auto& [Item, NumMore] : {std::pair(Category, 0), std::pair(Category->child(0), 1)})
	{
		List.setCurrentItem(Item);
		QTest::keyClick(&List, Qt::Key_Return);
		Let(0.0);
		EXPECT_EQ(LevelActors::GetAll().Num(), NumBefore + NumMore) << Item->text(0).toStdString();
	}
	EXPECT_TRUE(Find<QLabel>("PlacementHint").text().startsWith(QStringLiteral("Placed"))) << Find<QLabel>("PlacementHint").text().toStdString();
}

TEST_F(DocksAndPanels, TheIconPickerSearchesAndPicks)
{
	Open();
	AVlmInteractiveSpot& Spot = InspectSpot();
	QLineEdit* Field = nullptr;
	FItemsArea* Icons = nullptr;
	for (QWidget* const Each : Find("Details").findChildren<QWidget*>())
	{
		Icons = dynamic_cast<FItemsArea*>(Each) != nullptr ? static_cast<FItemsArea*>(Each) : Icons;
	}
	ASSERT_NE(Icons, nullptr);
	for (QWidget* Around = Icons; Around != nullptr && Field == nullptr; Around = Around->parentWidget())
	{
		Field = Around->findChild<QLineEdit*>();
	}
	ASSERT_NE(Field, nullptr);
	const int NumAll = Icons->GetNumItems();
	QTest::keyClicks(Field, QStringLiteral("no such thing"));
	Let(0.0);
	EXPECT_EQ(Icons->GetNumItems(), 0);
	Field->clear();
	QTest::keyClicks(Field, QStringLiteral("sea"));
	Let(0.0);
	EXPECT_GT(Icons->GetNumItems(), 0);
	EXPECT_LT(Icons->GetNumItems(), NumAll);
	const FName Before = Spot.Icon.IconName;
	QTest::keyClick(Icons, Qt::Key_End);
	Let(0.0);
	EXPECT_NE(Spot.Icon.IconName, Before) << "the last one that is found";
}
