// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** A word of a script line, and where it stands in the line's text, quotes included. */
struct FScriptWord
{
	FString Text; // quotes removed, escapes resolved
	int32 Begin = 0;
	int32 End = 0; // behind the last character
	bool bQuoted = false; // begins with a quote
};

/** One line of a script that says something. */
struct FScriptLine
{
	int32 Number = 0; // one-based
	FString Source; // without surrounding blanks and comment
	TArray<FScriptWord> Words;
};

/** What is wrong with a script. */
struct FScriptProblem
{
	int32 Line = 0; // one-based; 0 when the script as a whole is meant
	FString Message;

	/** "demo.velscript(3): error: message" */
	FString ToString(const FString& Script) const;
};

namespace ScriptLines
{
	/**
	 * Parts a script into lines and words. Words are separated by blanks; double quotes keep blanks together, and within them \" \\ \n
	 * and \t stand for themselves; # at the start of a word begins a comment. Lines without words are left out.
	 */
	TArray<FScriptLine> Parse(const FString& Text, TArray<FScriptProblem>& OutProblems);
}
