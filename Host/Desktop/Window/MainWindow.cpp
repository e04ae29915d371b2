// Copyright Velmorant. All Rights Reserved.

#include "Window/MainWindow.h"

#include "HostContentBrowser.h"
#include "HostPaths.h"
#include "QtText.h"
#include "UObject/UObjectIterator.h"
#include "UnrealEdMisc.h"
#include "VlmImage.h"
#include "Widgets/WidgetRoot.h"
#include "Window/EditorMenus.h"
#include "Window/NoticeBar.h"
#include "Window/QuestionDialog.h"
#include "Window/SaveAssetDialog.h"
#include "Window/StatusLine.h"
#include "Window/UnsavedQuestion.h"

#include <algorithm>
#include <utility>

namespace MainWindow
{
	static const int FrameMilliseconds = 16;
	static const int ToolbarMilliseconds = 500; // between two looks at what plugins added to it
	static const int OutsideMilliseconds = 2000; // between two looks at files that others may change
	static const int TellingMilliseconds = 8000;
	static const int ArrangementVersion = 2; // another one forgets how the docks were arranged
	static const QSize FirstSize(1440, 900);

	/** Pictures that the service sent, such as that of the developer, are in the toolkit's images alone. */
	QByteArray FindPictureFile(const QString& Name)
	{
		const FName Wanted(*QtText::ToEditor(Name));
		for (TObjectIterator<UVlmImage> It; It; ++It)
		{
			if (It->GetBrush().GetResourceName() == Wanted && !It->GetPictureFile().IsEmpty())
			{
				return QByteArray(reinterpret_cast<const char*>(It->GetPictureFile().GetData()), It->GetPictureFile().Num());
			}
		}
		return QByteArray();
	}

	/** Takes the width that the tools at the sides leave, so that they keep theirs, and no height: the docks above and below share it. */
	QWidget* MakeMiddle()
	{
		QWidget* const Middle = new QWidget;
		Middle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
		Middle->setFixedHeight(0);
		return Middle;
	}

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
	, Docks(*this, *this)
	, Panels(*this, *this)
	, Tabs(*this)
	, Toasts(*this, *this)
	, Status(new FStatusLine(*this, this))
	, Menus(new FEditorMenus(*this, *this))
	, Notice(new FNoticeBar(this))
{
	setObjectName(QStringLiteral("Editor"));
	setDockOptions(AllowNestedDocks | AllowTabbedDocks | GroupedDragging);
	setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
	setDocumentMode(true);
	setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
	setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
	setCorner(Qt::TopLeftCorner, Qt::LeftDockWidgetArea);
	setCorner(Qt::TopRightCorner, Qt::RightDockWidgetArea);
	setStatusBar(Status);
	setCentralWidget(MainWindow::MakeMiddle());
	MakeToolbar();
	MakeDocks();
	Brushes.SetSource(&MainWindow::FindPictureFile);
	Editor.GetSession().SetPerson([this](const FHostQuestion& Question) { return Ask(Question); });
	Editor.OnGoingDown = [this] { LetGo(); };
	Editor.OnRestarted = [this](const TArray<FString>& Lost) { TellLost(Lost); };
	Editor.OnBroken = [this](const FString& Reason) { TellBroken(Reason); };
	resize(MainWindow::FirstSize);
	RestoreArrangement();
	if (!bArranged)
	{
		Docks.FillFirst();
	}
	Tabs.Refresh(); // their places change with it: before they are laid out
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
	Docks.Drop();
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
	addToolBarBreak();
	addToolBar(Notice);
	Notice->hide();
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
	Docks.Make();
	for (QDockWidget* const Dock : Docks.GetAll())
	{
		Menus->AddDock(*Dock);
	}
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
	if (!SinceOutside.isValid() || SinceOutside.elapsed() > MainWindow::OutsideMilliseconds)
	{
		LookOutside();
	}
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
		Tabs.Refresh();
		ShowWhatWasMade();
		const std::vector<FWidgetRoot*> All = Roots; // a copy: views come with roots of their own
		for (FWidgetRoot* const Root : All)
		{
			if (std::find(Roots.begin(), Roots.end(), Root) != Roots.end())
			{
				Root->Refresh();
			}
		}
		Docks.Refresh();
		Toasts.Refresh();
		Status->Refresh();
		Menus->Refresh();
	});
	bRefreshing = false;
}

/** The editor showed an asset in the content browser, which somebody may have closed or put behind another tab. */
void FMainWindow::ShowWhatWasMade()
{
	const int32 NumNow = HostContentBrowser::GetSyncHistory().Num();
	if (NumNow > NumShown)
	{
		ShowDock(QStringLiteral("ContentBrowser"));
	}
	NumShown = NumNow;
}

void FMainWindow::SetPlaying(int InLeastRows)
{
	LeastRows = InLeastRows;
	Toasts.SetFading(false);
}

FHostInputResult FMainWindow::Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input)
{
	FHostInputResult Result;
	const TSharedRef<SWidget> Held = Widget;
	Editor.Do([&Result, &Held, &Input] { Result = FHostWidgetAccess::Give(Held, Input); });
	RequestFrame();
	const bool bAct = Input.Kind == EHostInput::Click || Input.Kind == EHostInput::Check || Input.Kind == EHostInput::Pick;
	if (bAct && !Result.bDone && !Result.Reason.IsEmpty())
	{
		const FHostWidgetDescription Description = FHostWidgetAccess::Describe(*Held);
		Tell(tr("Not done: %1 %2").arg(QtText::From(Description.Label.IsEmpty() ? Description.Role : Description.Label), QtText::From(Result.Reason)));
	}
	return Result;
}

void FMainWindow::Tell(const QString& Text)
{
	Status->showMessage(Text, MainWindow::TellingMilliseconds);
}

void FMainWindow::GoToNotification()
{
	if (!Toasts.FocusNewest())
	{
		Tell(tr("There is no notification to answer"));
	}
}

void FMainWindow::Restart(const QString& Without)
{
	if (UnsavedQuestion::MayGoOn(Editor, *this, Without))
	{
		bLossAgreed = true;
		Editor.Do([] { FUnrealEdMisc::Get().RestartEditor(false); });
	}
}

void FMainWindow::LookOutside()
{
	SinceOutside.start();
	bool bNews = false;
	if (Editor.IsReady())
	{
		Editor.Do([this, &bNews] { bNews = Outside.Look(); });
	}
	if (!bNews)
	{
		return;
	}
	QStringList Names;
	for (const QString& File : Outside.GetChanged())
	{
		Names.append(QDir(QtText::From(HostPaths::GetProjectDir())).relativeFilePath(File));
	}
	const QString Text = Names.size() == 1 ? tr("%1 was changed outside the editor.").arg(Names[0]) : tr("%1 files were changed outside the editor.").arg(Names.size());
	Notice->Show(Text, Names.join(QLatin1Char('\n')), tr("Read again"), [this] { Restart(tr("Read again without saving")); });
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
	Docks.Show(Name);
}

void FMainWindow::Inspect(const TArray<UObject*>& Objects)
{
	Docks.Inspect(Objects);
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
	if (!UnsavedQuestion::MayGoOn(Editor, *this, tr("Close without saving")))
	{
		Event->ignore();
		return;
	}
	KeepArrangement();
	Timer.stop();
	QMainWindow::closeEvent(Event);
	QApplication::quit();
}

void FMainWindow::resizeEvent(QResizeEvent* Event)
{
	QMainWindow::resizeEvent(Event);
	RequestFrame();
}

void FMainWindow::showEvent(QShowEvent* Event)
{
	QMainWindow::showEvent(Event);
	if (!bArranged)
	{
		bArranged = true;
		Docks.ArrangeAtFirst();
	}
}

void FMainWindow::LetGo()
{
	Toolbar.Reset();
	Outside.Forget();
	Notice->hide();
	NumShown = 0;
	Panels.LetGo();
	Toasts.LetGo();
	Docks.LetGo();
}

void FMainWindow::TellLost(const TArray<FString>& Lost)
{
	if (!std::exchange(bLossAgreed, false) && !Lost.IsEmpty())
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
	Notice->hide();
}

void FMainWindow::KeepArrangement() const
{
	QSettings Settings(GetSettingsFile(), QSettings::IniFormat);
	Settings.setValue(QStringLiteral("Window/Geometry"), saveGeometry());
	Settings.setValue(QStringLiteral("Window/Arrangement"), saveState(MainWindow::ArrangementVersion));
}
