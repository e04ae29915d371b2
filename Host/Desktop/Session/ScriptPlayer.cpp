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

	/** Keeps a picture of each part of a script. */
	class FPictures
	{
	public:
		FPictures(const FString& InFolder, FMainWindow& InWindow)
			: Folder(QtText::From(InFolder))
			, Window(InWindow)
		{
		}

		void Note(const FScriptStep& Step)
		{
			if (Step.IsHeading())
			{
				Keep();
				++Number;
				Name = MakeFileName(Step.GetArguments()[0]);
			}
		}

		void Keep()
		{
			if (Folder.isEmpty() || Name.isEmpty())
			{
				return;
			}
			const QString File = QStringLiteral("%1/%2-%3.png").arg(Folder).arg(Number, 2, 10, QLatin1Char('0')).arg(Name);
			if (!QDir().mkpath(Folder) || !Draw(Window).save(File))
			{
				HostProblems::Report(QtText::ToEditor(File), 0, TEXT("the picture cannot be written"));
			}
		}

	private:
		QString Folder;
		QString Name;
		int Number = 0;
		FMainWindow& Window;
	};

	EExitStatus Play(const FString& File, const FString& PictureFolder, FDesktopEditor& Editor, FMainWindow& Window)
	{
		const FString Text = ScriptFile::ReadText(File);
		Refusal::PrintProblems(EExitStatus::Trouble, false);
		FScript Script;
		if (!HostProblems::GetAll().IsEmpty() || !ScriptFile::Parse(File, Text, false, Script))
		{
			return EExitStatus::Trouble;
		}
		Editor.GetSession().SetPerson(nullptr); // what the script does not answer takes its default, as without a window
		Window.SetLeastRows(STableViewBase::HostRowsInView);
		FPictures Pictures(PictureFolder, Window);
		EExitStatus Status = EExitStatus::Trouble;
		Editor.Do([&] {
			const TUniquePtr<IScriptReport> Report = ScriptReport::Make(File, false);
			FScriptRunner Runner(Editor.GetSession(), *Report, [&](const FScriptStep& Step) {
				Pictures.Note(Step); // a heading ends the part before it
				Window.ShowNow();
			});
			Status = Runner.Run(Script);
		});
		Pictures.Keep();
		return Status;
	}
}
