// Copyright Velmorant. All Rights Reserved.

#include "QtHeaders.h"

#include "Console.h"
#include "DesktopArguments.h"
#include "HostLocale.h"
#include "Look/Theme.h"
#include "Misc/Paths.h"
#include "ProgramFault.h"
#include "ProjectArgument.h"
#include "QtText.h"
#include "Run/RunCommand.h"
#include "Scripts/ServiceFile.h"
#include "Scripts/ToolkitScripts.h"
#include "Session/DesktopEditor.h"
#include "Session/ProjectLock.h"
#include "Session/ScriptPlayer.h"
#include "Window/MainWindow.h"
#include "Window/SharedProjectQuestion.h"

#include <exception>

namespace DesktopMain
{
	Theme::EKind FindTheme(const FString& Name)
	{
		if (Name.IsEmpty())
		{
			return Theme::FindPreferred();
		}
		return Name == TEXT("light") ? Theme::EKind::Light : Theme::EKind::Dark;
	}

	/** Unset with what is wrong told. */
	TOptional<EExitStatus> MakeOptions(const FDesktopArguments& Arguments, FEditorHostOptions& OutOptions)
	{
		FString Project;
		const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, false);
		if (End.IsSet())
		{
			return End;
		}
		FRunArguments Run;
		Run.Inputs = ServiceFile::MakeInputs(Arguments.Service);
		if (!RunCommand::CheckFiles(Run))
		{
			return EExitStatus::Trouble;
		}
		OutOptions = RunCommand::MakeOptions(Project, Run);
		return TOptional<EExitStatus>();
	}

	int Run(const FDesktopArguments& Arguments, const FEditorHostOptions& Options)
	{
		FDesktopEditor Editor(Options);
		Editor.OnBroken = [](const FString& Reason) { Console::PrintErrorLines(FString(TEXT("velmorant-editor: ")) + Reason); };
		const bool bPlays = !Arguments.Script.IsEmpty(); // then starting is a step of its own
		FProjectLock Lock;
		if (!bPlays && !Lock.Take(QtText::From(FPaths::GetPath(Options.Project))) && !SharedProjectQuestion::MayShare(Lock, QtText::From(FPaths::GetBaseFilename(Options.Project))))
		{
			return static_cast<int>(EExitStatus::Done);
		}
		if (!bPlays && !Editor.Start())
		{
			return static_cast<int>(EExitStatus::Trouble);
		}
		FMainWindow Window(Editor);
		Window.setWindowTitle(QtText::From(FPaths::GetBaseFilename(Options.Project)) + QStringLiteral(" – Velmorant"));
		if (bPlays)
		{
			Window.resize(ScriptPlayer::PictureSize);
			Window.show();
			return static_cast<int>(ScriptPlayer::Play(Arguments.Script, Arguments.Screenshot, Arguments.Pace, Editor, Window));
		}
		Window.show();
		if (Arguments.bWelcome)
		{
			Window.Welcome();
		}
		Window.StartClock();
		return QApplication::exec();
	}
}

int main(int Count, char** Values)
{
	Console::Prepare();
	HostLocale::UseUnicodeCharacterClasses();
	ScriptExtension::Set(ToolkitScripts::MakeExtension());
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
	if (!Arguments.Screenshot.IsEmpty())
	{
		qputenv("QT_QPA_PLATFORM", "offscreen"); // pictures are the same on every screen, and without one
	}
	QApplication Application(Count, Values);
	QApplication::setApplicationName(QStringLiteral("velmorant-editor"));
	QApplication::setApplicationVersion(QStringLiteral(VELMORANT_VERSION));
	Theme::Apply(DesktopMain::FindTheme(Arguments.Theme));
	const int Status = DesktopMain::Run(Arguments, Options);
	return Console::Finish() ? Status : static_cast<int>(EExitStatus::Trouble);
}
