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
#include "Session/DesktopEditor.h"
#include "Session/ScriptPlayer.h"
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

	static int Run(const FDesktopArguments& Arguments, const FEditorHostOptions& Options)
	{
		FDesktopEditor Editor(Options);
		Editor.OnBroken = [](const FString& Reason) { Console::PrintError(FString(TEXT("velmorant-editor: ")) + Reason); };
		const bool bPlays = !Arguments.Script.IsEmpty(); // then starting is a step of its own
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
			return static_cast<int>(ScriptPlayer::Play(Arguments.Script, Arguments.Screenshot, Editor, Window));
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
