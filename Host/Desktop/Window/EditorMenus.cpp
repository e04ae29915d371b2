// Copyright Velmorant. All Rights Reserved.

#include "Window/EditorMenus.h"

#include "Editor.h"
#include "Editor/Transactor.h"
#include "HostPackages.h"
#include "QtText.h"
#include "Session/DesktopEditor.h"
#include "Window/CommandPalette.h"
#include "Window/SaveSteps.h"
#include "Window/WindowServices.h"

namespace EditorMenus
{
	static const TCHAR* const PanelClass = TEXT("/Script/Blutility.EditorUtilityWidgetBlueprint");

	/** The title of the step that would be undone (0) or done again (1); empty when there is none. */
	QString FindStep(int32 Offset)
	{
		const UTransactor* Steps = GEditor != nullptr ? GEditor->Trans.Get() : nullptr;
		if (Steps == nullptr)
		{
			return QString();
		}
		const int32 Index = Steps->GetQueueLength() - Steps->GetUndoCount() - 1 + Offset;
		return Index >= 0 && Index < Steps->GetQueueLength() ? QtText::From(Steps->GetTransaction(Index)->GetTitle()) : QString();
	}

	void FitStep(QAction& Action, const QString& Verb, const QString& Step)
	{
		const QString Text = Step.isEmpty() ? Verb : QStringLiteral("%1: %2").arg(Verb, Step);
		if (Action.text() != Text)
		{
			Action.setText(Text);
			Action.setEnabled(!Step.isEmpty());
		}
	}
}

FEditorMenus::FEditorMenus(IWindowServices& InServices, QMainWindow& InWindow)
	: QObject(&InWindow)
	, Services(InServices)
	, Window(InWindow)
{
	MakeFileMenu();
	MakeEditMenu();
	MakeWindowMenu();
	MakeHelpMenu();
}

void FEditorMenus::MakeFileMenu()
{
	QMenu* const Menu = Window.menuBar()->addMenu(tr("&File"));
	Save = Menu->addAction(tr("&Save all"), this, [this] { SaveAll(); });
	Save->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
	Save->setObjectName(QStringLiteral("SaveAll"));
	Menu->addSeparator();
	QAction* const RestartAction = Menu->addAction(tr("&Restart the editor"), this, [this] { Restart(); });
	RestartAction->setObjectName(QStringLiteral("Restart"));
	QAction* const Close = Menu->addAction(tr("&Close"), &Window, &QWidget::close);
	Close->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
}

void FEditorMenus::MakeEditMenu()
{
	QMenu* const Menu = Window.menuBar()->addMenu(tr("&Edit"));
	Undo = Menu->addAction(tr("Undo"), this, [this] {
		Services.GetEditor().Do([] { GEditor->UndoTransaction(); });
		Services.RequestFrame();
	});
	Undo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
	Redo = Menu->addAction(tr("Redo"), this, [this] {
		Services.GetEditor().Do([] { GEditor->RedoTransaction(); });
		Services.RequestFrame();
	});
	Redo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Y")));
	Menu->addSeparator();
	QAction* const Palette = Menu->addAction(tr("Command palette…"), this, [this] { (new FCommandPalette(Services, Window))->show(); });
	Palette->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+P")));
	Palette->setObjectName(QStringLiteral("CommandPalette"));
	Undo->setEnabled(false);
	Redo->setEnabled(false);
}

void FEditorMenus::MakeWindowMenu()
{
	WindowMenu = Window.menuBar()->addMenu(tr("&Window"));
	PanelsMenu = WindowMenu->addMenu(tr("&Panels"));
	connect(PanelsMenu, &QMenu::aboutToShow, this, [this] { FillPanels(); });
	QAction* const Notification = WindowMenu->addAction(tr("Go to the &notification"), this, [this] { Services.GoToNotification(); });
	Notification->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+N")));
	Notification->setObjectName(QStringLiteral("GoToNotification"));
	WindowMenu->addSeparator();
}

void FEditorMenus::MakeHelpMenu()
{
	QMenu* const Menu = Window.menuBar()->addMenu(tr("&Help"));
	QAction* const Welcome = Menu->addAction(tr("&What to try first"), this, [this] { Services.ShowDock(QStringLiteral("Welcome")); });
	Welcome->setObjectName(QStringLiteral("HelpWelcome"));
	Welcome->setShortcut(QKeySequence(Qt::Key_F1));
}

void FEditorMenus::AddDock(QDockWidget& Dock)
{
	WindowMenu->addAction(Dock.toggleViewAction());
}

void FEditorMenus::FillPanels()
{
	PanelsMenu->clear();
	for (const HostPackages::FStoredAsset& Asset : HostPackages::Scan())
	{
		if (Asset.ClassPath.ToString() == EditorMenus::PanelClass)
		{
			const QString Path = QtText::From(Asset.PackageName);
			PanelsMenu->addAction(QtText::From(Asset.AssetName), this, [this, Path] { OpenPanel(Path); });
		}
	}
}

void FEditorMenus::OpenPanel(const QString& AssetPath)
{
	FString Reason;
	Services.GetEditor().Do([this, &AssetPath, &Reason] {
		FPanelHost& Panels = Services.GetEditor().GetSession().GetPanels();
		Panels.Open(QtText::ToEditor(AssetPath), FString(), Reason);
	});
	if (!Reason.IsEmpty())
	{
		Services.Tell(QtText::From(Reason));
	}
	Services.RequestFrame();
}

void FEditorMenus::SaveAll()
{
	if (!Services.GetEditor().IsReady())
	{
		return;
	}
	const SaveSteps::FResult Result = SaveSteps::Save(Services.GetEditor(), Window, Services.GetEditor().GetSession().GetUnsaved());
	Services.RequestFrame();
	if (!Result.Reasons.isEmpty())
	{
		Services.Tell(tr("Not saved: %1").arg(Result.Reasons));
	}
	else if (Result.NumLeft > 0)
	{
		Services.Tell(tr("Cancelled: %1 saved, %2 are still unsaved").arg(Result.Saved.Saved.Num()).arg(Result.NumLeft));
	}
	else
	{
		Services.Tell(Result.Saved.Saved.IsEmpty() ? tr("There is nothing to save") : tr("Saved: %1").arg(QtText::From(FString::Join(Result.Saved.Saved, TEXT(", ")))));
	}
}

void FEditorMenus::Restart()
{
	Services.Restart(tr("Restart without saving"));
}

void FEditorMenus::Refresh()
{
	EditorMenus::FitStep(*Undo, tr("Undo"), EditorMenus::FindStep(0));
	EditorMenus::FitStep(*Redo, tr("Redo"), EditorMenus::FindStep(1));
}
