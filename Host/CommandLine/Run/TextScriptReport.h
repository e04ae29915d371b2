// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/ScriptReport.h"

/** For people: the steps under their titles, and below each what it printed and what the editor did. */
class FTextScriptReport : public IScriptReport
{
public:
	explicit FTextScriptReport(const FString& InScript)
		: Script(InScript)
	{
	}

	virtual void TellStep(const FStepRecord& Record) override;
	virtual void TellEnd(const FRunSummary& Summary) override;
	virtual void TellStopped(int32 Line, const FString& Reason) override;

private:
	const FString Script;
};
