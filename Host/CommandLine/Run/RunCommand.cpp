// Copyright Velmorant. All Rights Reserved.

#include "Run/RunCommand.h"

#include "HostFiles.h"
#include "HostProblems.h"
#include "Misc/Paths.h"
#include "ProjectArgument.h"
#include "Refusal.h"
#include "Run/Script.h"
#include "Run/ScriptFile.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptRunner.h"

namespace RunCommand
{
	namespace
	{
		/** Tells what is wrong with the files that were named. */
		bool CheckFiles(const FRunArguments& Arguments)
		{
			const HostFiles::EKind Kind = Arguments.Service.IsEmpty() ? HostFiles::EKind::File : HostFiles::GetKind(Arguments.Service);
			if (Kind != HostFiles::EKind::File)
			{
				HostProblems::Report(FPaths::ConvertRelativePathToFull(Arguments.Service), 0, Kind == HostFiles::EKind::Missing ? TEXT("there is no such data file") : TEXT("this is no ordinary file, and nothing is read from it"), TEXT("Name the file that the service answers from."));
			}
			Refusal::PrintProblems(EExitStatus::Trouble, Arguments.bJson);
			return HostProblems::GetAll().IsEmpty();
		}

		FEditorHostOptions MakeOptions(const FString& Project, const FRunArguments& Arguments)
		{
			FEditorHostOptions Options = EditorArguments::MakeOptions(Project, Arguments.Editor);
			if (!Arguments.Service.IsEmpty())
			{
				Options.CommandLine += FString::Printf(TEXT(" -VelmorantService=\"%s\""), *FPaths::ConvertRelativePathToFull(Arguments.Service));
			}
			return Options;
		}
	}

	EExitStatus Run(const FRunArguments& Arguments)
	{
		FString Project;
		const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, Arguments.bJson);
		if (End.IsSet())
		{
			return End.GetValue();
		}
		const FString Text = ScriptFile::ReadText(Arguments.Script);
		FScript Script;
		if (!CheckFiles(Arguments) || !ScriptFile::Parse(Arguments.Script, Text, Arguments.bJson, Script))
		{
			return EExitStatus::Trouble;
		}
		const TUniquePtr<IScriptReport> Report = ScriptReport::Make(Arguments.Script, Arguments.bJson);
		FScriptSession Session(MakeOptions(Project, Arguments));
		FScriptRunner Runner(Session, *Report);
		return Runner.Run(Script);
	}
}
