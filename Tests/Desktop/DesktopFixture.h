// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "TestHeaders.h"

#include "Session/DesktopEditor.h"
#include "TemporaryFolder.h"
#include "Window/MainWindow.h"

#include <functional>
#include <memory>

/** The window on a copy of the sample property, which goes with the test. Time passes when the test says so. */
class FDesktopTest : public testing::Test
{
protected:
	FDesktopTest();
	virtual ~FDesktopTest() override;

	/** Opens the window; again after Close(), as on the next day. */
	void Open();
	void Close();

	FMainWindow& GetWindow() { return *Window; }
	void Let(double Seconds) { Window->Let(Seconds); }

	/** The widget of that name that shows; fails the test when there is none. */
	template<typename WidgetType = QWidget>
	WidgetType& Find(const char* Name)
	{
		WidgetType* const Found = FindShown<WidgetType>(Name);
		if (Found == nullptr)
		{
			throw std::runtime_error(std::string("nothing shows that is called ") + Name);
		}
		return *Found;
	}

	/** Null when nothing of that name shows. */
	template<typename WidgetType = QWidget>
	WidgetType* FindShown(const char* Name)
	{
		for (QWidget* const Root : QApplication::topLevelWidgets())
		{
			for (WidgetType* const Each : Root->findChildren<WidgetType*>(QLatin1String(Name)))
			{
				if (Each->isVisible())
				{
					return Each;
				}
			}
		}
		return nullptr;
	}

	/** Presses the mouse on it and lets go; then everything shows what came of it. */
	void Click(QWidget& Widget);
	void Click(const char* Name) { Click(Find(Name)); }

	/** The push button that bears this text. */
	QAbstractButton& FindButton(const QString& Text);

	/** Takes the place of what is in the field, key by key, and leaves it with Enter. */
	void Type(const char* Name, const QString& Text);

	/** All texts that show in the widget. */
	QStringList TextsIn(const QWidget& Widget);

	/** Does something while the dialog that comes next is open. */
	void WhenAsked(std::function<void(QDialog&)> Act);

	/** Presses a button of the message box of that name, which comes next. */
	void Answer(const QString& Button, const QString& Name);

	QDockWidget& FindDock(const QString& Name);

	/** Changes the level, so that there is something to lose. */
	void Change();

	FTemporaryFolder Folder;

private:
	std::unique_ptr<FDesktopEditor> Editor;
	std::unique_ptr<FMainWindow> Window;
};
