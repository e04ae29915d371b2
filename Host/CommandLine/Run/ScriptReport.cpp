// Copyright Velmorant. All Rights Reserved.

#include "Run/ScriptReport.h"

#include "Console.h"
#include "Run/JsonScriptReport.h"
#include "Run/TextScriptReport.h"

TUniquePtr<IScriptReport> ScriptReport::Make(const FString& Script, bool bJson)
{
	if (bJson)
	{
		return MakeUnique<FJsonScriptReport>(Script);
	}
	return MakeUnique<FTextScriptReport>(Script);
}

FString ScriptReport::DescribeTrouble(const FString& Script, const FStepRecord& Record)
{
	switch (Record.Result.Outcome)
	{
		case EStepOutcome::Failed:
			return FString::Printf(TEXT("%s(%d): failed: %s"), *Script, Record.Line, *Record.Result.Message);
		case EStepOutcome::Error:
			return FScriptProblem{Record.Line, Record.Result.Message}.ToString(Script);
		default:
			return FString();
	}
}
