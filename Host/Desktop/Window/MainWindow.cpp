// Copyright Velmorant. All Rights Reserved.

#include "Window/MainWindow.h"

#include "Docks/DetailsDock.h"
#include "HostPaths.h"
#include "QtText.h"
#include "Widgets/WidgetRoot.h"
#include "Window/DockView.h"
#include "Window/DockViews.h"
#include "Window/EditorMenus.h"
#include "Window/QuestionDialog.h"
#include "Window/SaveAssetDialog.h"
#include "Window/StatusLine.h"

#include <algorithm>
#include <map>
#include <utility>

namespace MainWindow
{
	static const int FrameMilliseconds = 16;
	static const int ToolbarMilliseconds = 500; // between two looks at what plugins added to it
	static const int ArrangementVersion = 1;
	static const QSize FirstSize(1440, 900);
	static const int SideWidth = 420;
	static const int BottomHeight = 300;

	std::unique_ptr<FQuestionDialog> MakeDialog(const FHostQuestion& Question, QWidget* Parent)
	{
		if (Question.Kind == FName("SaveAsset"))
		{
			return std::make_unique<FSaveAssetDialog>(Question, Parent);
		}
		return std::make_unique<FQuestionDialog>(Question, Parent);
	}
}

FMainWindow::FMainWindow(FDesktopEditor& InEditor)
	: Editor(InEditor)
	, Panels(*this, *this)
	, Toasts(*this, *this)
	, Status(new FStatusLine(*this, this))
	, Menus(new FEditorMenus(*this, *this))
{
	setObjectName(QStringLiteral("Editor"));
	setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks | GroupedDragging);
	setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
	setDocumentMode(true);
	setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
	setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
	setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
	setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
	setStatusBar(Status);
	MakeToolbar();
	MakeDocks();
	Editor.GetSession().SetPerson([this](const FHostQuestion& Question) { return Ask(Question); });
	Editor.OnGoingDown = [this] { LetGo(); };
	Editor.OnRestarted = [this](const TArray<FString>& Lost) { TellLost(Lost); };
	Editor.OnBroken = [this](const FString& Reason) { TellBroken(Reason); };
	resize(MainWindow::FirstSize);
	RestoreArrangement();
	connect(&Timer, &QTimer::timeout, this, [this] { Frame(); });
	Refresh();
}

FMainWindow::~FMainWindow()
{
	Editor.GetSession().SetPerson(nullptr);
	Editor.OnGoingDown = nullptr;
	Editor.OnRestarted = nullptr;
	Editor.OnBroken = nullptr;
	LetGo();
	// Roots take their leave of this window: they must go before it is half gone.
	for (const FFixedDock& Each : Docks)
	{
		delete Each.Dock;
	}
	while (!Roots.empty())
	{
		delete Roots.back();
	}
}

void FMainWindow::MakeToolbar()
{
	QToolBar* const Bar = addToolBar(tr("Toolbar"));
	Bar->setObjectName(QStringLiteral("Toolbar"));
	Bar->setMovable(false);
	Bar->addWidget(new FWidgetRoot(
		*this, [this] { return FindToolbar(); }, Bar));
}

TSharedPtr<SWidget> FMainWindow::FindToolbar()
{
	if (!Editor.GetSession().IsRunning())
	{
		return nullptr;
	}
	if (!Toolbar.IsValid() || !SinceToolbar.isValid() || SinceToolbar.elapsed() > MainWindow::ToolbarMilliseconds)
	{
		Toolbar = Editor.GetSession().GetToolbar().GetContent();
		SinceToolbar.start();
	}
	return Toolbar;
}

void FMainWindow::MakeDocks()
{
	std::map<std::pair<int, int>, QDockWidget*> Firsts; // by area and stack
	for (const DockViews::FKind& Kind : DockViews::GetAll())
	{
		QDockWidget* const Dock = new QDockWidget(tr(Kind.Title), this);
		Dock->setObjectName(QLatin1String(Kind.Name));
		FDockView* const View = Kind.Make(*this, Dock);
		Dock->setWidget(View);
		addDockWidget(Kind.Area, Dock);
		const auto [First, bFirst] = Firsts.try_emplace({Kind.Area, Kind.Stack}, Dock);
		if (!bFirst)
		{
			tabifyDockWidget(First->second, Dock);
		}
		Dock->setVisible(Kind.bOpenAtFirst);
		Docks.push_back({QLatin1String(Kind.Name), Dock, View});
		Menus->AddDock(*Dock);
	}
	for (const auto& First : Firsts)
	{
		First.second->raise();
	}
}

/** Wide middle, tools around it; what a person arranged takes its place. */
void FMainWindow::ArrangeAtFirst()
{
	QList<QDockWidget*> Across;
	QList<int> Widths;
	QList<QDockWidget*> Down;
	QList<int> Heights;
	for (const FFixedDock& Each : Docks)
	{
		const Qt::DockWidgetArea Area = dockWidgetArea(Each.Dock);
		if (!Each.Dock->isVisible())
		{
			continue; // behind another tab, or closed
		}
		Across.append(Each.Dock);
		Widths.append(Area == Qt::RightDockWidgetArea || Area == Qt::LeftDockWidgetArea ? MainWindow::SideWidth : width() - MainWindow::SideWidth);
		if (Area == Qt::TopDockWidgetArea || Area == Qt::BottomDockWidgetArea)
		{
			Down.append(Each.Dock);
			Heights.append(Area == Qt::BottomDockWidgetArea ? MainWindow::BottomHeight : height() - MainWindow::BottomHeight);
		}
	}
	resizeDocks(Across, Widths, Qt::Horizontal);
	resizeDocks(Down, Heights, Qt::Vertical);
}

void FMainWindow::Welcome()
{
	QSettings Settings(GetSettingsFile(), QSettings::IniFormat);
	if (!Settings.value(QStringLiteral("Window/Welcomed")).toBool())
	{
		Settings.setValue(QStringLiteral("Window/Welcomed"), true); // from now on, as the arrangement has it
		ShowDock(QStringLiteral("Welcome"));
	}
}

void FMainWindow::StartClock()
{
	Timer.start(MainWindow::FrameMilliseconds);
}

void FMainWindow::Frame()
{
	Editor.Frame();
	Refresh();
}

void FMainWindow::Refresh()
{
	bFrameRequested = false;
	if (!Editor.IsReady() || bRefreshing)
	{
		return;
	}
	RefreshAll();
}

void FMainWindow::Let(double Seconds)
{
	Editor.Let(Seconds);
	ShowNow();
}

void FMainWindow::ShowNow()
{
	RefreshAll();
	QApplication::sendPostedEvents();
	QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
	RefreshAll(); // lists know how many rows there is room for
	QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void FMainWindow::RefreshAll()
{
	if (!Editor.GetSession().IsRunning())
	{
		return;
	}
	bRefreshing = true;
	Editor.Do([this] {
		Panels.Refresh();
		const std::vector<FWidgetRoot*> All = Roots; // a copy: views come with roots of their own
		for (FWidgetRoot* const Root : All)
		{
			if (std::find(Roots.begin(), Roots.end(), Root) != Roots.end())
			{
				Root->Refresh();
			}
		}
		for (const FFixedDock& Each : Docks)
		{
			if (Each.View->isVisible())
			{
				Each.View->Refresh();
			}
		}
		Toasts.Refresh();
		Status->Refresh();
		Menus->Refresh();
	});
	bRefreshing = false;
}

FHostInputResult FMainWindow::Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input)
{
	FHostInputResult Result;
	const TSharedRef<SWidget> Held = Widget;
	Editor.Do([&Result, &Held, &Input] { Result = FHostWidgetAccess::Give(Held, Input); });
	RequestFrame();
	return Result;
}

void FMainWindow::RequestFrame()
{
	if (!bFrameRequested)
	{
		bFrameRequested = true;
		QTimer::singleShot(0, this, [this] { Refresh(); });
	}
}

void FMainWindow::AddRoot(FWidgetRoot& Root)
{
	Roots.push_back(&Root);
}

void FMainWindow::RemoveRoot(FWidgetRoot& Root)
{
	Roots.erase(std::remove(Roots.begin(), Roots.end(), &Root), Roots.end());
}

void FMainWindow::ShowDock(const QString& Name)
{
	for (const FFixedDock& Each : Docks)
	{
		if (Each.Name == Name)
		{
			Each.Dock->show();
			Each.Dock->raise();
		}
	}
	RequestFrame();
}

void FMainWindow::Inspect(const TArray<UObject*>& Objects)
{
	for (const FFixedDock& Each : Docks)
	{
		if (FDetailsDock* const Details = dynamic_cast<FDetailsDock*>(Each.View))
		{
			Details->Inspect(Objects);
		}
	}
}

/** The editor is in the middle of something, so neither it nor what shows it goes on until there is an answer. */
TOptional<FHostAnswer> FMainWindow::Ask(const FHostQuestion& Question)
{
	const FDesktopEditor::FStandstill Standstill(Editor);
	const std::unique_ptr<FQuestionDialog> Dialog = MainWindow::MakeDialog(Question, this);
	Dialog->exec();
	return Dialog->GetAnswer();
}

void FMainWindow::closeEvent(QCloseEvent* Event)
{
	if (!MayClose())
	{
		Event->ignore();
		return;
	}
	KeepArrangement();
	Timer.stop();
	QMainWindow::closeEvent(Event);
	QApplication::quit();
}

bool FMainWindow::MayClose()
{
	const TArray<FString> Unsaved = Editor.IsReady() ? Editor.GetSession().GetUnsaved() : TArray<FString>();
	if (Unsaved.IsEmpty())
	{
		return true;
	}
	const FDesktopEditor::FStandstill Standstill(Editor);
	QMessageBox Box(QMessageBox::Warning, tr("Unsaved changes"), tr("These have unsaved changes:\n\n%1").arg(QtText::From(FString::Join(Unsaved, TEXT("\n")))), QMessageBox::NoButton, this);
	QPushButton* const SaveAll = Box.addButton(tr("Save all"), QMessageBox::AcceptRole);
	QPushButton* const Discard = Box.addButton(tr("Close without saving"), QMessageBox::DestructiveRole);
	Box.addButton(QMessageBox::Cancel);
	Box.setDefaultButton(SaveAll);
	Box.setObjectName(QStringLiteral("Unsaved"));
	Box.exec();
	if (Box.clickedButton() == SaveAll)
	{
		FScriptSession::FSaved Saved;
		Editor.Do([this, &Saved, &Unsaved] { Saved = Editor.GetSession().Save(Unsaved); });
		return Saved.Failed.IsEmpty() && Saved.Homeless.IsEmpty();
	}
	return Box.clickedButton() == Discard;
}

void FMainWindow::resizeEvent(QResizeEvent* Event)
{
	QMainWindow::resizeEvent(Event);
	RequestFrame();
}

/** Docks take sizes once they have their place. */
void FMainWindow::showEvent(QShowEvent* Event)
{
	QMainWindow::showEvent(Event);
	if (!bArranged)
	{
		bArranged = true;
		ArrangeAtFirst();
	}
}

void FMainWindow::LetGo()
{
	Toolbar.Reset();
	Panels.LetGo();
	Toasts.LetGo();
	for (const FFixedDock& Each : Docks)
	{
		Each.View->LetGo();
	}
}

void FMainWindow::TellLost(const TArray<FString>& Lost)
{
	if (!Lost.IsEmpty())
	{
		const FDesktopEditor::FStandstill Standstill(Editor);
		QMessageBox::warning(this, tr("The editor has restarted"), tr("These had changes that were not saved, and are now as they are on disk:\n\n%1").arg(QtText::From(FString::Join(Lost, TEXT("\n")))));
	}
	Status->showMessage(tr("The editor has restarted"), 5000);
}

void FMainWindow::TellBroken(const FString& Reason)
{
	Timer.stop();
	QMessageBox::critical(this, tr("The editor cannot go on"), QtText::From(Reason));
	QApplication::exit(3);
}

QString FMainWindow::GetSettingsFile() const
{
	return QtText::From(HostPaths::GetUserSettingsDir()) + QStringLiteral("Desktop.ini");
}

void FMainWindow::RestoreArrangement()
{
	const QSettings Settings(GetSettingsFile(), QSettings::IniFormat);
	restoreGeometry(Settings.value(QStringLiteral("Window/Geometry")).toByteArray());
	bArranged = restoreState(Settings.value(QStringLiteral("Window/Arrangement")).toByteArray(), MainWindow::ArrangementVersion);
}

void FMainWindow::KeepArrangement() const
{
	QSettings Settings(GetSettingsFile(), QSettings::IniFormat);
	Settings.setValue(QStringLiteral("Window/Geometry"), saveGeometry());
	Settings.setValue(QStringLiteral("Window/Arrangement"), saveState(MainWindow::ArrangementVersion));
}
