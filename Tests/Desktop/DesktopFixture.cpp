// Copyright Velmorant. All Rights Reserved.

#include "DesktopFixture.h"

#include "Level/LevelActors.h"
#include "Look/Theme.h"
#include "QtText.h"
#include "Widgets/ButtonView.h"
#include "Widgets/TextView.h"

#include <filesystem>

namespace DesktopFixture
{
	static const QSize Size(1440, 900);
}

FDesktopTest::FDesktopTest()
{
	std::filesystem::copy(VELMORANT_SOURCE_DIR "/Samples/HarborTower", Folder.GetNative("HarborTower"), std::filesystem::copy_options::recursive);
	qputenv("VELMORANT_NO_KEYRING", "1");
	qputenv("XDG_STATE_HOME", QByteArray(Folder.GetNative("State").c_str()));
	Theme::Apply(Theme::EKind::Dark);
}

FDesktopTest::~FDesktopTest()
{
	Close();
}

void FDesktopTest::Open()
{
	FEditorHostOptions Options;
	Options.Project = Folder.Get("HarborTower/HarborTower.uproject");
	Options.UserSettingsDir = Folder.Get("Settings") + TEXT("/");
	Editor = std::make_unique<FDesktopEditor>(Options);
	ASSERT_TRUE(Editor->Start());
	Window = std::make_unique<FMainWindow>(*Editor);
	Window->resize(DesktopFixture::Size);
	Window->show();
	Let(0.0);
}

void FDesktopTest::Close()
{
	Window.reset();
	Editor.reset();
}

void FDesktopTest::Click(QWidget& Widget)
{
	EXPECT_TRUE(Widget.isEnabled()) << Widget.objectName().toStdString();
	QTest::mouseClick(&Widget, Qt::LeftButton);
	Let(0.0);
}

QAbstractButton& FDesktopTest::FindButton(const QString& Text)
{
	for (QWidget* const Root : QApplication::topLevelWidgets())
	{
		for (QAbstractButton* const Each : Root->findChildren<QAbstractButton*>())
		{
			if (Each->isVisible() && (Each->text() == Text || Each->accessibleName() == Text))
			{
				return *Each;
			}
		}
	}
	throw std::runtime_error("no button shows that reads " + Text.toStdString());
}

void FDesktopTest::Type(const char* Name, const QString& Text)
{
	QLineEdit& Field = Find<QLineEdit>(Name);
	Field.setFocus();
	Field.selectAll();
	QTest::keyClick(&Field, Qt::Key_Delete);
	QTest::keyClicks(&Field, Text);
	QTest::keyClick(&Field, Qt::Key_Return);
	Let(0.0);
}

QStringList FDesktopTest::TextsIn(const QWidget& Widget)
{
	QStringList Texts;
	for (const QWidget* const Each : Widget.findChildren<QWidget*>())
	{
		if (!Each->isVisible())
		{
			continue;
		}
		if (const FTextLabel* const Label = dynamic_cast<const FTextLabel*>(Each))
		{
			Texts.append(Label->GetText());
		}
		else if (const QLabel* const Plain = qobject_cast<const QLabel*>(Each))
		{
			Texts.append(Plain->text());
		}
	}
	return Texts;
}

void FDesktopTest::WhenAsked(std::function<void(QDialog&)> Act)
{
	QTimer::singleShot(0, [Act = std::move(Act)] {
		QDialog* const Dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
		ASSERT_NE(Dialog, nullptr) << "nothing was asked";
		Act(*Dialog);
	});
}

void FDesktopTest::Answer(const QString& Button, const QString& Name)
{
	WhenAsked([Button, Name](QDialog& Dialog) {
		EXPECT_EQ(Dialog.objectName(), Name);
		for (QPushButton* const Each : Dialog.findChildren<QPushButton*>())
		{
			if (Each->text() == Button)
			{
				Each->click();
				return;
			}
		}
		ADD_FAILURE() << "the message has no button " << Button.toStdString();
		Dialog.reject();
	});
}

QDockWidget& FDesktopTest::FindDock(const QString& Name)
{
	QDockWidget* const Found = GetWindow().findChild<QDockWidget*>(Name);
	if (Found == nullptr)
	{
		throw std::runtime_error("no dock is called " + Name.toStdString());
	}
	return *Found;
}

void FDesktopTest::Change()
{
	AActor* const Actor = LevelActors::GetAll()[0];
	Actor->Modify();
	Actor->SetActorLabel(TEXT("Renamed"));
	Let(0.0);
	ASSERT_EQ(Find<QLabel>("StatusUnsaved").text(), QStringLiteral("1 unsaved"));
}
