// Copyright Velmorant. All Rights Reserved.

#include "Run/RunCommand.h"

#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"
#include "ProjectArgument.h"
#include "Refusal.h"
#include "Run/Script.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptRunner.h"

#include <string>

namespace RunCommand
{
	/** Tells what is wrong with the files that were named. */
	bool CheckFiles(const FRunArguments& Arguments)
	{
		for (const FRunInput& Input : Arguments.Inputs)
		{
			const HostFiles::EKind Kind = HostFiles::GetKind(Input.Path);
			if (Kind != HostFiles::EKind::File)
			{
				HostProblems::Report(FPaths::ConvertRelativePathToFull(Input.Path), 0, Kind == HostFiles::EKind::Missing ? *Input.Missing : TEXT("this is no ordinary file, and nothing is read from it"), *Input.Remedy);
			}
		}
		Refusal::PrintProblems(EExitStatus::Trouble, Arguments.bJson);
		return HostProblems::GetAll().IsEmpty();
	}

	/** The script's text; false when it cannot be read, which is reported. */
	bool ReadScript(const FString& Path, FString& OutText)
	{
		std::string Text;
		const HostFiles::ERead Read = HostTextFiles::ReadUtf8(Path, Text);
		if (Read == HostFiles::ERead::Missing)
		{
			HostProblems::Report(FPaths::ConvertRelativePathToFull(Path), 0, TEXT("there is no such script"));
		}
		OutText = UTF8_TO_TCHAR(Text.c_str());
		return Read == HostFiles::ERead::Done;
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

	EExitStatus Run(const FRunArguments& Arguments)
	{
		FString Project;
		const TOptional<EExitStatus> End = ProjectArgument::Find(Arguments.Project, Project, Arguments.bJson);
		if (End.IsSet())
		{
			return End.GetValue();
		}
		FString Text;
		ReadScript(Arguments.Script, Text);
		if (!CheckFiles(Arguments))
		{
			return EExitStatus::Trouble;
		}
		TArray<FScriptProblem> Problems;
		const FScript Script = Script::Parse(Text, Problems);
		if (!Problems.IsEmpty())
		{
			TArray<FString> Lines;
			for (const FScriptProblem& Problem : Problems)
			{
				Lines.Add(Problem.ToString(Arguments.Script));
			}
			Refusal::Print(EExitStatus::Trouble, Lines, Arguments.bJson);
			return EExitStatus::Trouble;
		}
		const TUniquePtr<IScriptReport> Report = ScriptReport::Make(Arguments.Script, Arguments.bJson);
		FScriptRunner Runner(MakeOptions(Project, Arguments), *Report);
		return Runner.Run(Script);
	}
}
