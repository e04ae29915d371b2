// Copyright Velmorant. All Rights Reserved.
// Assets by mouse and keyboard: made, saved, renamed, deleted, opened.

#include "DesktopFixture.h"

#include "Docks/Content/ContentList.h"
#include "HostContentBrowser.h"
#include "HostPackages.h"
#include "QtText.h"
#include "UnrealEdMisc.h"
#include "VelmorantConfiguratorDataAsset.h"

class ContentBrowserDock : public FDesktopTest
{
protected:
	QListView& GetList() { return Find<QListView>("ContentItems"); }

	QStringList GetNames()
	{
		QStringList Names;
		for (int Row = 0; Row < GetList().model()->rowCount(); ++Row)
		{
			Names.append(GetList().model()->index(Row, 0).data().toString());
		}
		return Names;
	}

	/** The tile of that name; fails the test when it does not show. */
	QModelIndex FindTile(const QString& Name)
	{
		const int Row = static_cast<int>(GetNames().indexOf(Name));
		if (Row < 0)
		{
			throw std::runtime_error("no tile is called " + Name.toStdString() + ", but " + GetNames().join(QLatin1Char(' ')).toStdString());
		}
		return GetList().model()->index(Row, 0);
	}

	bool IsUnsaved(const QString& Name) { return FindTile(Name).data(FContentList::UnsavedRole).toBool(); }

	void Select(const QString& Name)
	{
		const QRect Tile = GetList().visualRect(FindTile(Name));
		QTest::mouseClick(GetList().viewport(), Qt::LeftButton, Qt::NoModifier, Tile.center());
		GetList().setFocus();
		Let(0.0);
	}

	void Open(const QString& Name)
	{
		Select(Name);
		QTest::keyClick(&GetList(), Qt::Key_Return);
		Let(0.0);
	}

	using FDesktopTest::Open;

	void Press(QKeySequence Keys)
	{
		const QKeyCombination Key = Keys[0];
		// Menus and dialogs took the focus; a person clicks into the list.
		QApplication::setActiveWindow(GetList().window());
		GetList().setFocus();
		QTest::keyClick(&GetList(), Key.key(), Key.keyboardModifiers());
		Let(0.0);
	}

	QAction& FindAction(QMenu& Menu, const QString& NameOrText)
	{
		for (QAction* const Each : Menu.findChildren<QAction*>())
		{
			if (Each->objectName() == NameOrText || Each->text() == NameOrText)
			{
				return *Each;
			}
		}
		throw std::runtime_error("the menu has no " + NameOrText.toStdString());
	}

	/** By the menu of new assets, with the name typed into the dialog. */
	void Add(const QString& Factory, const QString& Name)
	{
		QMenu& Menu = *Find<QPushButton>("ContentAdd").menu();
		Menu.popup(QPoint());
		WhenAsked([&Name](QDialog& Dialog) {
			Dialog.findChild<QLineEdit*>(QStringLiteral("Name"))->setText(Name);
			QTest::keyClick(&Dialog, Qt::Key_Return);
		});
		FindAction(Menu, Factory).trigger();
		Menu.close();
		Let(0.0);
	}

	/** The menu of what is selected, by the keyboard. */
	QMenu& OpenMenu()
	{
		QContextMenuEvent Key(QContextMenuEvent::Keyboard, QPoint(), GetList().mapToGlobal(QPoint()));
		QApplication::sendEvent(GetList().viewport(), &Key);
		return Find<QMenu>("ContentMenu");
	}

	void Pick(const QString& Entry)
	{
		QMenu& Menu = OpenMenu();
		FindAction(Menu, Entry).trigger();
		Menu.close();
		Let(0.0);
	}

	/** Types a name over that of the selected tile. */
	void Rename(const QString& Name)
	{
		Press(QKeySequence(Qt::Key_F2));
		QLineEdit& Edit = Find<QLineEdit>("ContentRename");
		Edit.selectAll();
		QTest::keyClicks(&Edit, Name);
		QTest::keyClick(&Edit, Qt::Key_Return);
		Let(0.0);
		QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
		Let(0.0);
	}

	bool HasFile(const char* Name) const { return Folder.Exists(std::string("HarborTower/Content/") + Name + ".uasset.json"); }

	UVelmorantConfiguratorDataAsset& LoadConfigurator(const TCHAR* Package)
	{
		return *CastChecked<UVelmorantConfiguratorDataAsset>(HostPackages::LoadAsset(Package));
	}
};

TEST_F(ContentBrowserDock, AnAssetFromTheMenuIsMarkedUntilItIsSavedAndGoneOtherwise)
{
	Open();
	Add(QStringLiteral("ConfiguratorDataAssetFactory"), QStringLiteral("Kept"));
	Add(QStringLiteral("ConfiguratorDataAssetFactory"), QStringLiteral("Lost"));
	EXPECT_TRUE(IsUnsaved(QStringLiteral("Kept")));
	EXPECT_TRUE(IsUnsaved(QStringLiteral("Lost")));
	EXPECT_FALSE(HasFile("Kept"));

	Select(QStringLiteral("Kept"));
	Press(QKeySequence(QStringLiteral("Ctrl+Shift+S")));
	EXPECT_TRUE(HasFile("Kept"));
	EXPECT_FALSE(IsUnsaved(QStringLiteral("Kept")));
	EXPECT_TRUE(IsUnsaved(QStringLiteral("Lost"))) << "only what is selected is saved";

	WhenAsked([](QDialog& Dialog) { Dialog.accept(); }); // names what was lost
	FUnrealEdMisc::Get().RestartEditor(false);
	Let(1.0);
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Kept")));
	EXPECT_FALSE(GetNames().contains(QStringLiteral("Lost")));
	EXPECT_FALSE(IsUnsaved(QStringLiteral("Kept")));
}

TEST_F(ContentBrowserDock, TheSaveDialogSaysWhatIsWrongWithAName)
{
	Open();
	Add(QStringLiteral("ConfiguratorDataAssetFactory"), QStringLiteral("Taken"));
	QMenu& Menu = *Find<QPushButton>("ContentAdd").menu();
	Menu.popup(QPoint());
	WhenAsked([](QDialog& Dialog) {
		QLineEdit& Name = *Dialog.findChild<QLineEdit*>(QStringLiteral("Name"));
		QLineEdit& Path = *Dialog.findChild<QLineEdit*>(QStringLiteral("Path"));
		const QLabel& Judgement = *Dialog.findChild<QLabel*>(QStringLiteral("SaveAssetJudgement"));
		const auto CanSave = [&Dialog] { return Dialog.findChild<QPushButton*>()->isEnabled(); };
		ASSERT_EQ(Dialog.findChild<QPushButton*>()->text(), QStringLiteral("Save"));
		for (const char* Wrong : {"", "a b", "a/b", "None"})
		{
			Name.setText(QLatin1String(Wrong));
			EXPECT_FALSE(CanSave()) << Wrong;
			EXPECT_FALSE(Judgement.text().isEmpty()) << Wrong;
		}
		Name.setText(QStringLiteral("taken"));
		EXPECT_TRUE(CanSave());
		EXPECT_TRUE(Judgement.text().contains(QStringLiteral("replace"))) << Judgement.text().toStdString();
		Name.setText(QStringLiteral("Free"));
		Path.setText(QStringLiteral("/Nowhere"));
		EXPECT_FALSE(CanSave());
		Path.setText(QStringLiteral("/Game/New/Folder"));
		EXPECT_EQ(Judgement.text(), QStringLiteral("/Game/New/Folder/Free"));
		QTest::keyClick(&Dialog, Qt::Key_Escape);
	});
	FindAction(Menu, QStringLiteral("ConfiguratorDataAssetFactory")).trigger();
	Menu.close();
	Let(0.0);
	EXPECT_FALSE(GetNames().contains(QStringLiteral("Free"))) << "Escape cancels";
	EXPECT_FALSE(GetNames().contains(QStringLiteral("NewVelmorantConfiguratorDataAsset")));
}

TEST_F(ContentBrowserDock, ARenamedAssetKeepsWhatRefersToItAndARefusalSaysWhy)
{
	Open();
	Add(QStringLiteral("ConfiguratorDataAssetFactory"), QStringLiteral("Garden"));
	LoadConfigurator(TEXT("/Game/Garden")).ConfiguratorName = FName("Garden Flat");
	Select(QStringLiteral("Garden"));
	Pick(QStringLiteral("Create LevelVariantSet"));
	EXPECT_TRUE(IsUnsaved(QStringLiteral("LevelVariant_Garden_Flat")));
	Click("ContentSaveAll");
	EXPECT_TRUE(HasFile("LevelVariant_Garden_Flat"));

	Select(QStringLiteral("LevelVariant_Garden_Flat"));
	Rename(QStringLiteral("Garden"));
	EXPECT_TRUE(Find<QLabel>("ContentMessage").text().contains(QStringLiteral("taken"))) << Find<QLabel>("ContentMessage").text().toStdString();
	EXPECT_TRUE(HasFile("LevelVariant_Garden_Flat"));

	Rename(QStringLiteral("Variants"));
	EXPECT_TRUE(HasFile("Variants"));
	EXPECT_FALSE(HasFile("LevelVariant_Garden_Flat"));
	Close();
	Open();
	EXPECT_TRUE(GetNames().contains(QStringLiteral("Variants"))) << GetNames().join(QLatin1Char(' ')).toStdString();
	EXPECT_EQ(QtText::From(LoadConfigurator(TEXT("/Game/Garden")).LevelVariantSets.ToString()), QStringLiteral("/Game/Variants.Variants"));
}

TEST_F(ContentBrowserDock, DeletingAsksAndNamesWhatStillRefersToTheAsset)
{
	Open();
	Add(QStringLiteral("ConfiguratorDataAssetFactory"), QStringLiteral("Garden"));
	LoadConfigurator(TEXT("/Game/Garden")).ConfiguratorName = FName("Garden Flat");
	Select(QStringLiteral("Garden"));
	Pick(QStringLiteral("Create LevelVariantSet"));
	Click("ContentSaveAll");

	Select(QStringLiteral("LevelVariant_Garden_Flat"));
	for (const bool bSure : {false, true})
	{
		WhenAsked([bSure](QDialog& Dialog) {
			EXPECT_TRUE(Dialog.findChild<QLabel*>()->text().contains(QStringLiteral("/Game/Garden")));
			const QList<QPushButton*> Buttons = Dialog.findChildren<QPushButton*>();
			ASSERT_EQ(Buttons.size(), 2);
			EXPECT_EQ(Buttons[0]->text(), QStringLiteral("Force Delete"));
			QTest::mouseClick(Buttons[bSure ? 0 : 1], Qt::LeftButton);
		});
		Press(QKeySequence(QKeySequence::Delete));
		EXPECT_EQ(HasFile("LevelVariant_Garden_Flat"), !bSure);
		EXPECT_EQ(GetNames().contains(QStringLiteral("LevelVariant_Garden_Flat")), !bSure);
	}
	EXPECT_TRUE(HostContentBrowser::GetSelection().IsEmpty()) << "nobody acts on what is gone";
}

TEST_F(ContentBrowserDock, DeletingNamesTheSettingsThatStillReferToTheAsset)
{
	Open();
	Folder.Write("HarborTower/Config/DefaultNames.ini", "[Names]\nLonger=/Game/UI/HarborStyleSheet.HarborStyleSheet\n");
	Open(QStringLiteral("UI"));
	Select(QStringLiteral("HarborStyle"));
	WhenAsked([](QDialog& Dialog) {
		const QString Text = Dialog.findChild<QLabel*>()->text();
		EXPECT_TRUE(Text.contains(QStringLiteral("Config/DefaultGame.ini, line "))) << Text.toStdString();
		EXPECT_FALSE(Text.contains(QStringLiteral("DefaultNames.ini"))) << "its name only begins like that of the asset";
		QTest::keyClick(&Dialog, Qt::Key_Escape);
	});
	Press(QKeySequence(QKeySequence::Delete));
	EXPECT_TRUE(GetNames().contains(QStringLiteral("HarborStyle")));
}

TEST_F(ContentBrowserDock, SearchGoesBelowTheFolderAndAnEmptyListSaysWhy)
{
	Open();
	const QStringList Whole = GetNames();
	Find<QLineEdit>("ContentSearch").setText(QStringLiteral("harbor"));
	Let(0.0);
	EXPECT_TRUE(GetNames().contains(QStringLiteral("HarborTower"))) << "the level, in its folder; case does not count: " << GetNames().join(QLatin1Char(' ')).toStdString();
	Find<QLineEdit>("ContentSearch").setText(QStringLiteral("no such thing"));
	Let(0.0);
	EXPECT_TRUE(GetNames().isEmpty());
	EXPECT_TRUE(Find<QLabel>("ContentEmpty").text().contains(QStringLiteral("no such thing")));
	QTest::keyClick(&Find("ContentSearch"), Qt::Key_Escape);
	EXPECT_EQ(GetNames(), Whole);
	EXPECT_EQ(FindShown("ContentEmpty"), nullptr);

	// Folders are entered and left by keys alone.
	ASSERT_TRUE(Whole.contains(QStringLiteral("Maps")));
	Open(QStringLiteral("Maps"));
	EXPECT_EQ(Find<QLabel>("ContentPath").text(), QStringLiteral("/Game/Maps"));
	QTest::keyClick(&GetList(), Qt::Key_Backspace);
	EXPECT_EQ(GetNames(), Whole);
	EXPECT_EQ(GetList().currentIndex().data().toString(), QStringLiteral("Maps"));
}

TEST_F(ContentBrowserDock, FollowsWhatOthersSelect)
{
	Open();
	HostContentBrowser::SetSelection({FAssetData(HostPackages::LoadAsset(TEXT("/Game/Maps/HarborTower")))});
	Let(0.0);
	EXPECT_EQ(Find<QLabel>("ContentPath").text(), QStringLiteral("/Game/Maps"));
	EXPECT_EQ(GetList().currentIndex().data().toString(), QStringLiteral("HarborTower"));
	EXPECT_TRUE(GetList().selectionModel()->isSelected(GetList().currentIndex()));
}
