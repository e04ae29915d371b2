// Copyright Velmorant. All Rights Reserved.
// The window around the docks: tabs, closing, files that others change, what is refused.

#include "DesktopFixture.h"

#include "HostAssetTools.h"
#include "HostContentBrowser.h"
#include "HostNotifications.h"
#include "HostPackages.h"
#include "HostPaths.h"
#include "Level/LevelActors.h"
#include "QtText.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <filesystem>

class EditorWindow : public FDesktopTest
{
protected:
	/** The tab of that title, wherever it is. */
	std::pair<QTabBar*, int> FindTab(const QString& Title)
	{
		for (QTabBar* const Bar : GetWindow().findChildren<QTabBar*>())
		{
			for (int Index = 0; Index < Bar->count(); ++Index)
			{
				if (Bar->isVisible() && Bar->tabText(Index) == Title)
				{
					return {Bar, Index};
				}
			}
		}
		throw std::runtime_error("no tab is called " + Title.toStdString());
	}

	std::string Level() const { return "HarborTower/Content/Maps/HarborTower.umap.json"; }
};

TEST_F(EditorWindow, ShowsOneTitleForEachDockAndClosesTabsByTheirCross)
{
	Open();
	ASSERT_FALSE(GetWindow().tabifiedDockWidgets(&FindDock(QStringLiteral("Outliner"))).isEmpty());
	EXPECT_NE(FindDock(QStringLiteral("Outliner")).titleBarWidget(), nullptr) << "the tab says it";
	EXPECT_EQ(FindDock(QStringLiteral("Plan")).titleBarWidget(), nullptr) << "alone, it has its title";

	const auto [Bar, Index] = FindTab(QStringLiteral("Placement"));
	QWidget* const Cross = Bar->tabButton(Index, QTabBar::RightSide);
	ASSERT_NE(Cross, nullptr);
	QTest::mouseClick(Cross, Qt::LeftButton);
	Let(0.0);
	EXPECT_TRUE(FindDock(QStringLiteral("Placement")).isHidden());
	EXPECT_FALSE(FindDock(QStringLiteral("Outliner")).isHidden()) << "only the one whose cross was clicked";
	EXPECT_EQ(FindDock(QStringLiteral("Outliner")).titleBarWidget(), nullptr) << "it stands alone now";
	FindDock(QStringLiteral("Placement")).toggleViewAction()->trigger();
	Let(0.0);
	EXPECT_NE(FindDock(QStringLiteral("Outliner")).titleBarWidget(), nullptr);
}

TEST_F(EditorWindow, KeepsTheToolsAsWideAsTheyWereWhenPanelsComeAndGo)
{
	Open();
	const int Before = FindDock(QStringLiteral("Details")).width();
	for (int Round = 0; Round < 3; ++Round)
	{
		Click("VelmorantMenu");
		Click(FindButton(QStringLiteral("Login")));
		QDockWidget* Panel = nullptr;
		for (QDockWidget* const Each : GetWindow().findChildren<QDockWidget*>())
		{
			Panel = Each->objectName().startsWith(QStringLiteral("Tab.")) ? Each : Panel;
		}
		ASSERT_NE(Panel, nullptr);
		EXPECT_GE(Panel->width(), 320);
		EXPECT_NEAR(FindDock(QStringLiteral("Details")).width(), Before, 8) << "with the panel, round " << Round;
		Panel->close();
		Let(0.0);
		EXPECT_NEAR(FindDock(QStringLiteral("Details")).width(), Before, 8) << "without it again, round " << Round;
	}
}

TEST_F(EditorWindow, BringsTheContentBrowserBackWhenAnAssetIsMade)
{
	Open();
	FindDock(QStringLiteral("ContentBrowser")).close();
	Let(0.0);
	Click("VelmorantMenu");
	EXPECT_TRUE(FindDock(QStringLiteral("ContentBrowser")).isHidden()) << "nothing was made yet";
	QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
	HostContentBrowser::SetSelection({});
	WhenAsked([](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Return); });
	for (const HostAssetTools::FNewAssetItem& Item : HostAssetTools::GetNewAssetMenu())
	{
		if (Item.DisplayName.ToString().Contains(TEXT("Configurator Data")))
		{
			HostAssetTools::CreateFromMenu(Item, TEXT("/Game"));
			break;
		}
	}
	Let(0.0);
	EXPECT_FALSE(FindDock(QStringLiteral("ContentBrowser")).isHidden());
}

TEST_F(EditorWindow, AsksBeforeUnsavedWorkIsLostAndSaysWhatCannotBeSaved)
{
	Open();
	const std::string Before = Folder.Read(Level());
	Change();
	Answer(QStringLiteral("Cancel"), QStringLiteral("Unsaved"));
	EXPECT_FALSE(GetWindow().close());
	EXPECT_TRUE(GetWindow().isVisible());
	EXPECT_EQ(Folder.Read(Level()), Before);

	// A file that cannot be written: the window stays, and says why.
	const std::filesystem::path File = Folder.GetNative(Level());
	std::filesystem::permissions(File, std::filesystem::perms::owner_read);
	WhenAsked([this](QDialog& Dialog) {
		Answer(QStringLiteral("OK"), QStringLiteral("NotSaved"));
		for (QPushButton* const Button : Dialog.findChildren<QPushButton*>())
		{
			if (Button->text() == QStringLiteral("Save all"))
			{
				Button->click();
			}
		}
	});
	EXPECT_FALSE(GetWindow().close());
	EXPECT_TRUE(GetWindow().isVisible());
	std::filesystem::permissions(File, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

	Answer(QStringLiteral("Save all"), QStringLiteral("Unsaved"));
	EXPECT_TRUE(GetWindow().close());
	EXPECT_NE(Folder.Read(Level()), Before);
}

TEST_F(EditorWindow, OffersToReadAgainWhatOthersHaveChanged)
{
	Open();
	GetWindow().LookOutside();
	EXPECT_EQ(FindShown("Notice"), nullptr);
	Change();
	FindButton(QStringLiteral("Save all")).click();
	GetWindow().LookOutside();
	EXPECT_EQ(FindShown("Notice"), nullptr) << "what the editor saves itself is no news";

	std::string Text = Folder.Read(Level());
	const size_t At = Text.find("Renamed");
	ASSERT_NE(At, std::string::npos);
	Folder.Write(Level(), Text.replace(At, 7, "Outside"));
	GetWindow().LookOutside();
	EXPECT_EQ(Find<QLabel>("NoticeText").text(), QStringLiteral("Content/Maps/HarborTower.umap.json was changed outside the editor."));
	Click("NoticeLater");
	GetWindow().LookOutside();
	EXPECT_EQ(FindShown("Notice"), nullptr) << "said once";

	Folder.Write("HarborTower/Config/DefaultGame.ini", Folder.Read("HarborTower/Config/DefaultGame.ini") + "\n");
	GetWindow().LookOutside();
	EXPECT_EQ(Find<QLabel>("NoticeText").text(), QStringLiteral("2 files were changed outside the editor."));
	Click("NoticeOffer");
	Let(1.0);
	EXPECT_EQ(FindShown("Notice"), nullptr);
	const TArray<AActor*> Actors = LevelActors::GetAll();
	EXPECT_TRUE(Actors.ContainsByPredicate([](const AActor* Actor) { return Actor->GetActorLabel() == TEXT("Outside"); })) << "it is read again";
	GetWindow().LookOutside();
	EXPECT_EQ(FindShown("Notice"), nullptr);
}

TEST_F(EditorWindow, ReachesNotificationsByKeysAndSaysWhenThereIsNone)
{
	Open();
	Let(1.0);
	QApplication::setActiveWindow(&GetWindow());
	QAction& Go = *GetWindow().findChild<QAction*>(QStringLiteral("GoToNotification"));
	Go.trigger();
	const QPushButton* const Focused = qobject_cast<const QPushButton*>(QApplication::focusWidget());
	ASSERT_NE(Focused, nullptr);
	EXPECT_EQ(Focused->parentWidget()->objectName(), QStringLiteral("Toast"));
	HostNotifications::DropStanding();
	Let(0.0);
	Go.trigger();
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QStringLiteral("There is no notification to answer"));
}

TEST_F(EditorWindow, TellsWhatWasClickedInVain)
{
	Open();
	Let(1.0);
	QAbstractButton& Skip = FindButton(QStringLiteral("Skip"));
	Skip.click();
	EXPECT_EQ(GetWindow().statusBar()->currentMessage(), QString());
	Skip.click(); // before the window shows that it is gone
	EXPECT_TRUE(GetWindow().statusBar()->currentMessage().startsWith(QStringLiteral("Not done: Skip "))) << GetWindow().statusBar()->currentMessage().toStdString();
}
