// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ExitStatus.h"
#include "Run/Script.h"
#include "Run/ScriptReport.h"
#include "Run/ScriptSession.h"

/** Runs a script step by step, up to its end or the first step that is not done. */
class FScriptRunner
{
public:
	/** @param InAfterStep called after each step, for those who show what it did; may be null */
	FScriptRunner(FScriptSession& InSession, IScriptReport& InReport, TFunction<void(const FScriptStep&)> InAfterStep = nullptr)
		: Session(InSession)
		, Report(InReport)
		, AfterStep(MoveTemp(InAfterStep))
	{
	}

	EExitStatus Run(const FScript& Script);

private:
	/** Starting is a step of its own: what the editor does then belongs to no line of the script. */
	void StartEditor();
	FStepResult RunStep(const FScriptStep& Step);
	FStepResult Do(const FScriptStep& Step, FStepRecord& Record);
	void RestartIfWanted(FStepResult& Result);
	FRunSummary SumUp(EStepOutcome Outcome, int32 NumSteps);

	FScriptSession& Session;
	IScriptReport& Report;
	TFunction<void(const FScriptStep&)> AfterStep;
};
