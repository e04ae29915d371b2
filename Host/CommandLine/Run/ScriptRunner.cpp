// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptRunner.h"

#include "Console.h"
#include "HostAssertions.h"
#include "ProgramFault.h"
#include "ProgressLine.h"
#include "Run/ScriptContext.h"
#include "Run/ScriptSecrets.h"

namespace ScriptRunner
{
	const TCHAR* const Bullets = TEXT("\"\u2022\u2022\u2022\u2022\u2022\u2022\u2022\u2022\""); // as many whatever was typed

	/** The line as the script has it, with bullets in the place of secrets. */
	FString GetShownText(const FScriptStep& Step, const FScriptContext& Context)
	{
		FString Text = Step.Line.Source;
		for (int32 Index = Step.Line.Words.Num() - 1; Index >= 0; --Index)
		{
			const FScriptWord& Word = Step.Line.Words[Index];
			if (Context.IsMasked(Index))
			{
				Text = Text.Left(Word.Begin) + Bullets + Text.RightChop(Word.End);
			}
		}
		return Text;
	}

	FStepResult Look(const FScriptStep& Step, FScriptContext& Context)
	{
		const FExpectation Seen = Step.Expectation->Look(Context, Step.GetArguments());
		if (!Seen.Error.IsEmpty())
		{
			return FStepResult::Error(Seen.Error);
		}
		if (Seen.bHolds != Step.bNegated)
		{
			return FStepResult::Done();
		}
		FStepResult Result;
		Result.Outcome = EStepOutcome::Failed;
		Result.Message = GetShownText(Step, Context);
		if (!Step.bNegated && !Seen.Found.IsEmpty())
		{
			Result.Message += TEXT(", but ") + Seen.Found;
		}
		return Result;
	}

	/** A person sees that work was not kept, and goes no further. */
	FStepResult JudgeWrites(const FStepResult& Result, const TArray<FHostProblem>& NotWritten)
	{
		if (Result.Outcome != EStepOutcome::Done || NotWritten.IsEmpty())
		{
			return Result;
		}
		TArray<FString> Texts;
		for (const FHostProblem& Problem : NotWritten)
		{
			Texts.AddUnique(HostProblems::ToString(Problem));
		}
		return FStepResult::Error(FString::Join(Texts, TEXT("\n")));
	}

	/** What the engine would not survive ends the script, not the program. */
	FStepResult RunGuarded(const FScriptStep& Step, FScriptContext& Context)
	{
		try
		{
			const FStepResult Result = Step.Command != nullptr ? Step.Command->Run(Context, Step.GetArguments()) : Look(Step, Context);
			if (Step.Command != nullptr)
			{
				Context.Session.GetEditor().Tick(0.0); // a person sees the result before going on
			}
			return Result;
		}
		catch (const FHostAssertionFailure& Failure)
		{
			return FStepResult::Error(ProgramFault::Describe(Failure));
		}
	}
}

EExitStatus FScriptRunner::Run(const FScript& Script)
{
	EStepOutcome Outcome = EStepOutcome::Done;
	int32 NumDone = 0;
	for (int32 Index = 0; Index < Script.Steps.Num() && Outcome == EStepOutcome::Done; ++Index)
	{
		const FScriptStep& Step = Script.Steps[Index];
		if (!Console::Flush())
		{
			Report.TellStopped(Step.Line.Number, TEXT("the output cannot be written; this step and those after it were not done"));
			Outcome = EStepOutcome::Error;
			break;
		}
		if (!Step.IsHeading() && !Session.IsRunning())
		{
			StartEditor();
		}
		Outcome = RunStep(Step).Outcome;
		NumDone += Outcome == EStepOutcome::Done ? 1 : 0;
		if (AfterStep)
		{
			AfterStep(Step);
		}
	}
	FRunSummary Summary = SumUp(Outcome, NumDone);
	ScriptSecrets::Hide(Summary);
	Report.TellEnd(Summary);
	return Summary.Status;
}

void FScriptRunner::StartEditor()
{
	FStepRecord Record;
	Record.Text = TEXT("(the editor starts)");
	Session.Start();
	Record.Events = Session.GetEvents().Take();
	ScriptSecrets::Hide(Record);
	Report.TellStep(Record);
}

FStepResult FScriptRunner::RunStep(const FScriptStep& Step)
{
	FStepRecord Record;
	Record.Line = Step.Line.Number;
	if (Step.IsHeading())
	{
		Record.Text = Step.Line.Source;
		Record.Heading = Step.GetArguments()[0];
		ScriptSecrets::Hide(Record);
		Report.TellStep(Record);
		return Record.Result;
	}
	Record.Result = Do(Step, Record);
	ScriptSecrets::Hide(Record);
	Report.TellStep(Record);
	return Record.Result;
}

FStepResult FScriptRunner::Do(const FScriptStep& Step, FStepRecord& Record)
{
	FScriptContext Context(Session, Step.Line.Number);
	const FProgressLine Progress(FString::Printf(TEXT("line %d: %s"), Step.Line.Number, Step.GetName())); // its words may be secret
	FStepResult Result = ScriptRunner::RunGuarded(Step, Context);
	const FString AnswerTrouble = Session.GetAnswers().TakeTrouble();
	if (Result.Outcome == EStepOutcome::Done && !AnswerTrouble.IsEmpty())
	{
		Result = FStepResult::Error(AnswerTrouble);
	}
	RestartIfWanted(Result);
	Session.GetEvents().Collect();
	Record.Text = ScriptRunner::GetShownText(Step, Context);
	Record.Output = Context.GetOutput();
	Record.Events = Session.GetEvents().Take();
	return ScriptRunner::JudgeWrites(Result, Record.Events.NotWritten);
}

void FScriptRunner::RestartIfWanted(FStepResult& Result)
{
	if (Result.Outcome != EStepOutcome::Done || !Session.WantsRestart())
	{
		return;
	}
	const TArray<FString> Unsaved = Session.GetUnsaved();
	if (Unsaved.IsEmpty())
	{
		Session.Restart();
		return;
	}
	Result = FStepResult::Error(FString::Printf(TEXT("the editor would restart and lose unsaved changes: %s; save or discard them first"), *FString::Join(Unsaved, TEXT(", "))));
}

FRunSummary FScriptRunner::SumUp(EStepOutcome Outcome, int32 NumSteps)
{
	FRunSummary Summary;
	Summary.NumSteps = NumSteps;
	Summary.WrittenFiles = Session.GetWrittenFiles();
	Summary.Unsaved = Session.GetUnsaved();
	Summary.UnusedAnswers = Session.GetAnswers().GetUnused();
	if (Outcome == EStepOutcome::Error || Session.GetNumProblems() > 0)
	{
		Summary.Status = EExitStatus::Trouble;
	}
	else if (Outcome == EStepOutcome::Failed)
	{
		Summary.Status = EExitStatus::Failed;
	}
	return Summary;
}
