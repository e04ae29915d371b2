// Copyright Velmorant. All Rights Reserved.

#include "Session/ScriptPlayer.h"

#include "HostProblems.h"
#include "QtText.h"
#include "Refusal.h"
#include "Run/ScriptFile.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptRunner.h"
#include "Session/DesktopEditor.h"
#include "Widgets/Views/STableViewBase.h"
#include "Window/MainWindow.h"

namespace ScriptPlayer
{
	/** "The designer signs in" becomes "the-designer-signs-in". */
	QString MakeFileName(const FString& Heading)
	{
		QString Name;
		for (const QChar Character : QtText::From(Heading).toLower())
		{
			const bool bLetter = Character.isLetterOrNumber();
			if (bLetter || (!Name.isEmpty() && !Name.endsWith(QLatin1Char('-'))))
			{
				Name += bLetter ? Character : QLatin1Char('-');
			}
		}
		return Name.endsWith(QLatin1Char('-')) ? Name.chopped(1) : Name;
	}

	/** What comes up in rows changes the height of what they stand in, which shows one frame later, and so on outwards. */
	void Settle(FMainWindow& Window)
	{
		static const int NumFrames = 4;
		for (int Frame = 0; Frame < NumFrames; ++Frame)
		{
			Window.ShowNow();
		}
	}

	/** The window with the menus that are open over it. */
	QPixmap Draw(FMainWindow& Window)
	{
		QPixmap Picture = Window.grab();
		QPainter Painter(&Picture);
		for (QWidget* const Other : QApplication::topLevelWidgets())
		{
			if (Other->isVisible() && Other != &Window && (Other->isModal() || Other->windowType() == Qt::Popup))
			{
				Painter.drawPixmap(Window.mapFromGlobal(Other->mapToGlobal(QPoint())), Other->grab());
			}
		}
		return Picture;
	}

	bool Is(const FScriptStep& Step, const TCHAR* Command)
	{
		return Step.Command != nullptr && FStringView(Step.Command->Syntax.Name) == FStringView(Command);
	}

	/** A step after which nothing is left to see of what was done before. */
	bool ClearsWindow(const FScriptStep& Step)
	{
		return Is(Step, TEXT("restart")) || Is(Step, TEXT("close"));
	}

	/** Keeps a picture of each part of a script, and of each panel that the script reads. */
	class FPictures
	{
	public:
		FPictures(const FString& InFolder, FMainWindow& InWindow)
			: Folder(QtText::From(InFolder))
			, Window(InWindow)
		{
		}

		/** @param Next null after the last step */
		void Note(const FScriptStep& Step, const FScriptStep* Next)
		{
			if (Folder.isEmpty())
			{
				return;
			}
			if (Step.IsHeading())
			{
				++Number;
				Name = MakeFileName(Step.GetArguments()[0]);
			}
			if (Is(Step, TEXT("print snapshot")))
			{
				Settle(Window);
				KeepPanel(Step.GetArguments()[0]);
			}
			bCleared = bCleared ? Is(Step, TEXT("save")) || Step.Command == nullptr || ClearsWindow(Step) : ClearsWindow(Step);
			const bool bEnds = Next == nullptr || Next->IsHeading();
			if (!bCleared && !Name.isEmpty() && (bEnds || ClearsWindow(*Next)))
			{
				Settle(Window);
				Save(QString(), Draw(Window));
			}
		}

	private:
		/** As high as it would like to be, also where the window shows a part of it. */
		void KeepPanel(const FString& Panel)
		{
			if (QWidget* const Content = Window.FindPanelContent(Panel))
			{
				Save(QStringLiteral("-panel-") + MakeFileName(Panel), Content->grab());
			}
		}

		void Save(const QString& Ending, const QPixmap& Picture)
		{
			const QString File = QStringLiteral("%1/%2-%3%4.png").arg(Folder).arg(Number, 2, 10, QLatin1Char('0')).arg(Name, Ending);
			if (!QDir().mkpath(Folder) || !Picture.save(File))
			{
				HostProblems::Report(QtText::ToEditor(File), 0, TEXT("the picture cannot be written"));
			}
		}

		QString Folder;
		QString Name;
		int Number = 0;
		bool bCleared = false;
		FMainWindow& Window;
	};

	/** Lets people look on between two steps. The editor's time stands, as without a window. */
	void Pause(double Seconds)
	{
		QEventLoop Loop;
		QTimer::singleShot(static_cast<int>(Seconds * 1000.0), &Loop, &QEventLoop::quit);
		Loop.exec(QEventLoop::ExcludeUserInputEvents);
	}

	EExitStatus Play(const FString& File, const FString& PictureFolder, double Pace, FDesktopEditor& Editor, FMainWindow& Window)
	{
		const FString Text = ScriptFile::ReadText(File);
		Refusal::PrintProblems(EExitStatus::Trouble, false);
		FScript Script;
		if (!HostProblems::GetAll().IsEmpty() || !ScriptFile::Parse(File, Text, false, Script))
		{
			return EExitStatus::Trouble;
		}
		Editor.GetSession().SetPerson(nullptr); // what the script does not answer takes its default, as without a window
		Window.SetPlaying(STableViewBase::HostRowsInView);
		FPictures Pictures(PictureFolder, Window);
		EExitStatus Status = EExitStatus::Trouble;
		Editor.Do([&] {
			const TUniquePtr<IScriptReport> Report = ScriptReport::Make(File, false);
			int32 NumDone = 0;
			FScriptRunner Runner(Editor.GetSession(), *Report, [&](const FScriptStep& Step) {
				Window.ShowNow();
				++NumDone;
				Pictures.Note(Step, NumDone < Script.Steps.Num() ? &Script.Steps[NumDone] : nullptr);
				if (Pace > 0.0)
				{
					Pause(Pace);
				}
			});
			Status = Runner.Run(Script);
		});
		return Status;
	}
}
