// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptCommand.h"

/** One line, ready to run. */
struct FScriptStep
{
	FScriptLine Line;
	const FScriptCommand* Command = nullptr; // exactly one of the two is set
	const FScriptExpectation* Expectation = nullptr;
	bool bNegated = false; // "expect no …"
	int32 FirstArgument = 0; // which word

	FScriptArguments GetArguments() const { return FScriptArguments(Line, FirstArgument); }

	/** Of the command, or of what is expected. */
	const TCHAR* GetName() const { return Command != nullptr ? Command->Syntax.Name : Expectation->Syntax.Name; }

	/** A title for the steps that follow; needs no editor. */
	bool IsHeading() const { return Command != nullptr && FStringView(Command->Syntax.Name) == FStringView(TEXT("heading")); }
};

/** A script that was found to be well-formed as a whole: every line is a known command with the right number of words. */
struct FScript
{
	TArray<FScriptStep> Steps;
};

namespace Script
{
	/** Problems hold all lines that are wrong; messages never repeat more than a command's name, since words may be secret. */
	FScript Parse(const FString& Text, TArray<FScriptProblem>& OutProblems);
}
