// Copyright Velmorant. All Rights Reserved.
// The way of the demo, by mouse and keyboard.

#include "DesktopFixture.h"

using WayOfTheDemo = FDesktopTest;

TEST_F(WayOfTheDemo, LeadsFromTheMissingProfileToTheChosenProject)
{
	Open();

	// The missing collision profile is told, and added.
	Let(1.0);
	const QStringList Told = TextsIn(Find("Toast"));
	EXPECT_TRUE(Told.contains(QStringLiteral("Velmorant: Missing UnitVolume Profile"))) << Told.join(QLatin1Char('|')).toStdString();
	Click(FindButton(QStringLiteral("Add to Project Config")));
	Let(1.0);
	EXPECT_NE(Folder.Read("HarborTower/Config/DefaultEngine.ini").find("UnitVolume"), std::string::npos);
	Click(FindButton(QStringLiteral("Restart Editor")));
	Let(6.0);
	EXPECT_EQ(FindShown("Toast"), nullptr) << "nothing is missing any more";

	// The toolkit's menu opens below its button, and leads to the panel.
	Click("VelmorantMenu");
	Click(FindButton(QStringLiteral("Login")));
	ASSERT_NE(FindShown("SummitButton"), nullptr);
	EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "the menu closes with it";

	// Signing in: the password shows as dots, and nothing can be done meanwhile.
	Type("UserName", QStringLiteral("lucia"));
	EXPECT_EQ(Find<QLineEdit>("UserPassword").echoMode(), QLineEdit::Password);
	Type("UserPassword", QStringLiteral("harbor-2026"));
	Click("SummitButton");
	EXPECT_FALSE(Find("SummitButton").isEnabled());
	EXPECT_FALSE(Find("UserName").isEnabled());
	Let(1.0);
	EXPECT_TRUE(Find("SummitButton").isEnabled());
	EXPECT_EQ(Find<QLabel>("StatusUser").text(), QStringLiteral("Signed in as lucia"));

	QSet<QRgb> Colors;
	const QImage Picture = Find("DevImage").grab().toImage();
	for (int X = 0; X < Picture.width(); ++X)
	{
		Colors.insert(Picture.pixel(X, Picture.height() / 2));
	}
	EXPECT_GT(Colors.size(), 2) << "the developer's picture shows";

	// A project, by the keyboard.
	QWidget& Projects = Find("ProjectSelection");
	Projects.setFocus();
	QTest::keyClick(&Projects, Qt::Key_Space);
	QWidget& Popup = Find("ComboPopup");
	QTest::keyClick(&Popup, Qt::Key_Down);
	QTest::keyClick(&Popup, Qt::Key_Return);
	Let(1.0);
	EXPECT_EQ(FindShown("ComboPopup"), nullptr);
	EXPECT_EQ(Find<QLineEdit>("ProjectKeyCode").text(), QStringLiteral("HARBOR-TOWER"));
	EXPECT_EQ(Find<QLabel>("StatusSelectedProject").text(), QStringLiteral("Project: Harbor Tower"));

	// Its units are searched while somebody types.
	QWidget& List = Find("ItemList");
	ASSERT_TRUE(TextsIn(List).contains(QStringLiteral("Torre Brisa")));
	QLineEdit& Search = Find<QLineEdit>("SearchText");
	Search.setFocus();
	QTest::keyClicks(&Search, QStringLiteral("bri"));
	Let(0.0);
	EXPECT_EQ(TextsIn(List).count(QStringLiteral("Torre Brisa")), 1);
	EXPECT_FALSE(TextsIn(List).contains(QStringLiteral("Torre Alba")));
}

TEST_F(WayOfTheDemo, KeepsWhatAPersonTypesWhileFramesPass)
{
	Open();
	Click("VelmorantMenu");
	Click(FindButton(QStringLiteral("Login")));
	QLineEdit& Name = Find<QLineEdit>("UserName");
	Name.setFocus();
	QTest::keyClicks(&Name, QStringLiteral("luc"));
	Let(0.5);
	EXPECT_EQ(Name.text(), QStringLiteral("luc"));
	Name.setCursorPosition(0);
	QTest::keyClicks(&Name, QStringLiteral("x"));
	Let(0.5);
	EXPECT_EQ(Name.text(), QStringLiteral("xluc"));
	EXPECT_EQ(Name.cursorPosition(), 1) << "the cursor stays where the person put it";
}
