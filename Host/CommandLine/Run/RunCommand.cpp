// Copyright Velmorant. All Rights Reserved.

#include "Run/RunCommand.h"

#include "HostFiles.h"
#include "HostPaths.h"
#include "HostProblems.h"
#include "Misc/Paths.h"
#include "ProjectArgument.h"
#include "Refusal.h"
#include "Run/Script.h"
#include "Run/ScriptFile.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptRunner.h"
#include "StandardInput.h"

namespace RunCommand
{
	bool CheckFiles(const FRunArguments& Arguments)
	{
		for (const FRunInput& Input : Arguments.Inputs)
		{
			const HostFiles::EKind Kind = HostFiles::GetKind(Input.Path);
			if (Kind != HostFiles::EKind::File)
			{
				HostProblems::Report(FPaths::ConvertRelativePathToFull(Input.Path), 0, Kind == HostFiles::EKind::Missing ? HostFiles::ExplainMissing(Input.Path, Input.Missing) : FString(TEXT("this is no ordinary file, and nothing is read from it")), Input.Remedy);
			}
		}
		Refusal::PrintProblems(EExitStatus::Trouble, Arguments.bJson);
		return HostProblems::GetAll().IsEmpty();
	}

	/** What a script does, nobody watches: it writes in its project only. */
	void LimitWrites(FEditorHostOptions& Options, bool bAllowToolkitContent)
	{
		Options.WriteFolders = {FPaths::GetPath(Options.Project)};
		Options.WriteRemedy = TEXT("Scripts write in their project only. Content of the toolkit can be written with --allow-toolkit-content.");
		if (bAllowToolkitContent)
		{
			Options.WriteFolders.Append(HostFiles::FindDirectories(HostPaths::FindProgramData(TEXT("Plugins")))); // links, in a build tree
		}
	}

	FEditorHostOptions MakeOptions(const FString& Project, const FRunArguments& Arguments)
	{
		FEditorHostOptions Options = EditorArguments::MakeOptions(Project, Arguments.Editor);
		for (const FRunInput& Input : Arguments.Inputs)
		{
			Options.CommandLine += FString::Printf(TEXT(" -%s=\"%s\""), *Input.Switch, *FPaths::ConvertRelativePathToFull(Input.Path));
		}
		return Options;
	}

	TArray<FString*> GetFiles(FRunArguments& Arguments)
	{
		TArray<FString*> Files = {&Arguments.Script};
		for (FRunInput& Input : Arguments.Inputs)
		{
			Files.Add(&Input.Path);
		}
		return Files;
	}

	EExitStatus Run(FRunArguments Arguments)
	{
		FString Project;
		TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, Arguments.bJson);
		if (!End.IsSet())
		{
			End = StandardInput::Take(GetFiles(Arguments), Arguments.bJson);
		}
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
		FEditorHostOptions Options = MakeOptions(Project, Arguments);
		LimitWrites(Options, Arguments.bAllowToolkitContent);
		FScriptSession Session(Options);
		FScriptRunner Runner(Session, *Report);
		return Runner.Run(Script);
	}
}
