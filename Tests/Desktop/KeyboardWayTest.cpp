// Copyright Velmorant. All Rights Reserved.
// The way of the demo without a mouse: keys go where the focus is, and nowhere else.

#include "DesktopFixture.h"

#include "EngineUtils.h"
#include "Level/LevelActors.h"
#include "VelmorantLevelActors.h"

class KeyboardWay : public FDesktopTest
{
protected:
	/** Where keys go now. */
	QWidget& Focus()
	{
		QWidget* Target = QApplication::activePopupWidget();
		if (Target != nullptr && Target->focusWidget() != nullptr)
		{
			return *Target->focusWidget();
		}
		if (Target == nullptr)
		{
			QApplication::setActiveWindow(&GetWindow());
			Target = QApplication::focusWidget();
		}
		return Target != nullptr ? *Target : GetWindow();
	}

	void Press(Qt::Key Key, Qt::KeyboardModifiers Modifiers = Qt::NoModifier)
	{
		QTest::keyClick(&Focus(), Key, Modifiers);
		Let(0.0);
	}

	void Type(const QString& Text)
	{
		QTest::keyClicks(&Focus(), Text);
		Let(0.0);
	}

	/** Tab until the widget of that name, or the button that reads so, has the keys. */
	void TabTo(const QString& NameOrText)
	{
		static const int MostFields = 120;
		QStringList Visited;
		for (int Field = 0; Field < MostFields; ++Field)
		{
			const QWidget& Now = Focus();
			const QAbstractButton* const Button = qobject_cast<const QAbstractButton*>(&Now);
			if (Now.objectName() == NameOrText || (Button != nullptr && Button->text() == NameOrText))
			{
				return;
			}
			Visited.append(Now.objectName().isEmpty() ? QLatin1String(Now.metaObject()->className()) : Now.objectName());
			Press(Qt::Key_Tab);
		}
		throw std::runtime_error("Tab does not lead to " + NameOrText.toStdString() + ", but to " + Visited.join(QLatin1Char(' ')).toStdString());
	}

	/** By the command palette. */
	void Command(const QString& Name)
	{
		Press(Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
		Type(Name);
		Press(Qt::Key_Return);
	}

	/** Down to the entry of the menu that is open, and Enter. */
	void PickEntry(const QString& Text)
	{
		QMenu* const Menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
		ASSERT_NE(Menu, nullptr);
		for (int Entry = 0; Entry < 30; ++Entry)
		{
			if (Menu->activeAction() != nullptr && Menu->activeAction()->text() == Text)
			{
				QTest::keyClick(Menu, Qt::Key_Return);
				Let(0.0);
				return;
			}
			QTest::keyClick(Menu, Qt::Key_Down);
		}
		ADD_FAILURE() << "the keys do not reach " << Text.toStdString();
	}
};

TEST_F(KeyboardWay, LeadsFromTheMissingProfileToThePlacedVariants)
{
	Open();
	Let(1.0);
	Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
	TabTo(QStringLiteral("Add to Project Config"));
	Press(Qt::Key_Space);
	Let(1.0);
	EXPECT_NE(Folder.Read("HarborTower/Config/DefaultEngine.ini").find("UnitVolume"), std::string::npos);
	Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
	TabTo(QStringLiteral("Restart Editor"));
	Press(Qt::Key_Space);
	Let(6.0);

	Command(QStringLiteral("VelmorantDeveloperPanel"));
	TabTo(QStringLiteral("UserName"));
	Type(QStringLiteral("lucia"));
	Press(Qt::Key_Tab);
	Type(QStringLiteral("harbor-2026"));
	TabTo(QStringLiteral("SummitButton"));
	Press(Qt::Key_Space);
	Let(1.0);
	EXPECT_EQ(Find<QLabel>("StatusUser").text(), QStringLiteral("Signed in as lucia"));

	TabTo(QStringLiteral("ProjectSelection"));
	Press(Qt::Key_Space);
	Press(Qt::Key_Down);
	Press(Qt::Key_Return);
	Let(1.0);
	EXPECT_EQ(Find<QLabel>("StatusSelectedProject").text(), QStringLiteral("Project: Harbor Tower"));

	TabTo(QStringLiteral("ModeSelector"));
	Press(Qt::Key_Space);
	Press(Qt::Key_Down);
	Press(Qt::Key_Return);
	Let(0.5);
	TabTo(QStringLiteral("ConfiguratorList"));
	Press(Qt::Key_Down);
	Press(Qt::Key_Space);
	Let(0.5);
	TabTo(QStringLiteral("CreateAsset"));
	WhenAsked([](QDialog& Dialog) { QTest::keyClick(&Dialog, Qt::Key_Return); });
	Press(Qt::Key_Space);
	Let(0.0);
	EXPECT_EQ(Find<QLabel>("StatusUnsaved").text(), QStringLiteral("1 unsaved"));

	TabTo(QStringLiteral("ContentItems"));
	Press(Qt::Key_Home);
	QContextMenuEvent Key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
	QApplication::sendEvent(static_cast<QAbstractScrollArea&>(Focus()).viewport(), &Key);
	PickEntry(QStringLiteral("Create LevelVariantSet"));
	Press(Qt::Key_S, Qt::ControlModifier);
	EXPECT_EQ(Find<QLabel>("StatusUnsaved").text(), QStringLiteral("All saved"));
	EXPECT_TRUE(Folder.Exists("HarborTower/Content/Velmorant/Configurator"));
}
