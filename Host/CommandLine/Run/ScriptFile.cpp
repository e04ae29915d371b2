// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptFile.h"

#include "Containers/StringConv.h"
#include "HostProblems.h"
#include "HostTextFiles.h"
#include "Misc/Paths.h"
#include "Refusal.h"

#include <string>

FString ScriptFile::ReadText(const FString& Path)
{
	std::string Text;
	if (HostTextFiles::ReadUtf8(Path, Text) == HostFiles::ERead::Missing)
	{
		HostProblems::Report(FPaths::ConvertRelativePathToFull(Path), 0, HostFiles::ExplainMissing(Path, TEXT("there is no such script")));
	}
	return UTF8_TO_TCHAR(Text.c_str());
}

bool ScriptFile::Parse(const FString& Path, const FString& Text, bool bJson, FScript& OutScript)
{
	TArray<FScriptProblem> Problems;
	OutScript = Script::Parse(Text, Problems);
	TArray<FString> Lines;
	for (const FScriptProblem& Problem : Problems)
	{
		Lines.Add(Problem.ToString(Path));
	}
	if (!Lines.IsEmpty())
	{
		Refusal::Print(EExitStatus::Trouble, Lines, bJson);
	}
	return Lines.IsEmpty();
}
