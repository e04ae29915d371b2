// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "Console.h"
#include "DesktopArguments.h"
#include "EditorArguments.h"
#include "HostFiles.h"
#include "HostLocale.h"
#include "HostProblems.h"
#include "Look/Theme.h"
#include "Misc/Paths.h"
#include "ProgramFault.h"
#include "ProjectArgument.h"
#include "QtText.h"
#include "Refusal.h"
#include "Run/ScriptFile.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptRunner.h"
#include "Session/DesktopEditor.h"
#include "Window/MainWindow.h"

#include <exception>

namespace DesktopMain
{
	static Theme::EKind FindTheme(const FString& Name)
	{
		if (Name.IsEmpty())
		{
			return Theme::FindPreferred();
		}
		return Name == TEXT("light") ? Theme::EKind::Light : Theme::EKind::Dark;
	}

	/** Unset with what is wrong told. */
	static TOptional<EExitStatus> MakeOptions(const FDesktopArguments& Arguments, FEditorHostOptions& OutOptions)
	{
		FString Project;
		const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, false);
		if (End.IsSet())
		{
			return End;
		}
		OutOptions = EditorArguments::MakeOptions(Project, FEditorArguments());
		if (!Arguments.Service.IsEmpty())
		{
			if (HostFiles::GetKind(Arguments.Service) != HostFiles::EKind::File)
			{
				HostProblems::Report(FPaths::ConvertRelativePathToFull(Arguments.Service), 0, TEXT("there is no such data file"), TEXT("Name the file that the service answers from."));
				Refusal::PrintProblems(EExitStatus::Trouble, false);
				return EExitStatus::Trouble;
			}
			OutOptions.CommandLine += FString::Printf(TEXT(" -VelmorantService=\"%s\""), *FPaths::ConvertRelativePathToFull(Arguments.Service));
		}
		return TOptional<EExitStatus>();
	}

	/** Each step shows before the next one; at headings, and after the last step, a picture is kept if wanted. */
	static EExitStatus PlayScript(const FDesktopArguments& Arguments, FDesktopEditor& Editor, FMainWindow& Window)
	{
		const FString Text = ScriptFile::ReadText(Arguments.Script);
		Refusal::PrintProblems(EExitStatus::Trouble, false);
		FScript Script;
		if (!HostProblems::GetAll().IsEmpty() || !ScriptFile::Parse(Arguments.Script, Text, false, Script))
		{
			return EExitStatus::Trouble;
		}
		Editor.GetSession().SetPerson(nullptr); // what the script does not answer takes its default, as without a window
		const QString Folder = QtText::From(Arguments.Screenshot);
		int NumSteps = 0;
		const auto ShowStep = [&Window, &Folder, &NumSteps] {
			Window.ShowNow();
			++NumSteps;
			if (!Folder.isEmpty())
			{
				QDir().mkpath(Folder);
				Window.grab().save(QStringLiteral("%1/Step%2.png").arg(Folder).arg(NumSteps, 3, 10, QLatin1Char('0')));
			}
		};
		EExitStatus Status = EExitStatus::Trouble;
		Editor.Do([&] {
			const TUniquePtr<IScriptReport> Report = ScriptReport::Make(Arguments.Script, false);
			FScriptRunner Runner(Editor.GetSession(), *Report, ShowStep);
			Status = Runner.Run(Script);
		});
		return Status;
	}

	static int Run(const FDesktopArguments& Arguments, const FEditorHostOptions& Options)
	{
		FDesktopEditor Editor(Options);
		Editor.OnBroken = [](const FString& Reason) { Console::PrintError(FString(TEXT("velmorant-editor: ")) + Reason); };
		if (!Editor.Start())
		{
			return static_cast<int>(EExitStatus::Trouble);
		}
		FMainWindow Window(Editor);
		Window.setWindowTitle(QtText::From(FPaths::GetBaseFilename(Options.Project)) + QStringLiteral(" – Velmorant"));
		Window.show();
		if (!Arguments.Script.IsEmpty())
		{
			return static_cast<int>(PlayScript(Arguments, Editor, Window));
		}
		Window.StartClock();
		return QApplication::exec();
	}
}

int main(int Count, char** Values)
{
	Console::Prepare();
	HostLocale::UseUnicodeCharacterClasses();
	FDesktopArguments Arguments;
	TOptional<EExitStatus> End = DesktopArguments::Parse(Count, Values, Arguments);
	if (End.IsSet())
	{
		return static_cast<int>(Console::Finish() ? End.GetValue() : EExitStatus::Trouble);
	}
	FEditorHostOptions Options;
	End = DesktopMain::MakeOptions(Arguments, Options);
	if (End.IsSet())
	{
		return static_cast<int>(Console::Finish() ? End.GetValue() : EExitStatus::Trouble);
	}
	QApplication Application(Count, Values);
	QApplication::setApplicationName(QStringLiteral("velmorant-editor"));
	QApplication::setApplicationVersion(QStringLiteral(VELMORANT_VERSION));
	Theme::Apply(DesktopMain::FindTheme(Arguments.Theme));
	return DesktopMain::Run(Arguments, Options);
}
