// Copyright Velmorant. All Rights Reserved.
// Scripts: every line is a step or a problem in its place.

#include "FuzzEditor.h"
#include "FuzzTarget.h"
#include "Run/Script.h"

namespace ScriptFuzz
{
	void CheckWords(const FScriptLine& Line)
	{
		int32 Last = 0;
		for (const FScriptWord& Word : Line.Words)
		{
			FuzzTargets::Promise(Word.Begin >= Last && Word.End > Word.Begin && Word.End <= Line.Source.Len(), "words stand in their line, one behind the other");
			Last = Word.End;
		}
		FuzzTargets::Promise(!Line.Words.IsEmpty() && Last == Line.Source.Len(), "a line ends with its last word");
	}
}

void FuzzTargets::CheckScript(std::string_view Input)
{
	const FString Text = FuzzEditor::ToText(Input);
	TArray<FString> Lines;
	Text.ParseIntoArrayLines(Lines, false);
	TArray<FScriptProblem> Problems;
	const FScript Script = Script::Parse(Text, Problems);
	int32 Last = 0;
	for (const FScriptProblem& Problem : Problems)
	{
		Promise(Problem.Line >= Last && Problem.Line >= 1 && Problem.Line <= Lines.Num() && !Problem.Message.IsEmpty(), "problems are told in the order of their lines");
		Last = Problem.Line;
	}
	for (const FScriptStep& Step : Script.Steps)
	{
		ScriptFuzz::CheckWords(Step.Line);
		const bool bKnown = (Step.Command != nullptr) != (Step.Expectation != nullptr);
		const auto IsTold = [&Step](const FScriptProblem& Problem) { return Problem.Line == Step.Line.Number; };
		Promise(bKnown || Problems.ContainsByPredicate(IsTold), "a step that nobody knows is a problem");
	}
}
