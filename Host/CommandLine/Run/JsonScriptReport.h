// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptReport.h"

/** For programs: one JSON object a line, one for each step and one at the end. */
class FJsonScriptReport : public IScriptReport
{
public:
	explicit FJsonScriptReport(const FString& InScript)
		: Script(InScript)
	{
	}

	virtual void TellStep(const FStepRecord& Record) override;
	virtual void TellEnd(const FRunSummary& Summary) override;
	virtual void TellStopped(int32 Line, const FString& Reason) override;

private:
	const FString Script;
};
