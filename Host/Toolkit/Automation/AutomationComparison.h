// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Automation/AutomationReport.h"

/** What differs between a run in an engine and one here: the list of what to mend in the host, or in the module. */
struct FAutomationComparison
{
	struct FBeliefDifference
	{
		FString Name;
		FString InEngine; // empty: not recorded
		FString Here;
		const TCHAR* Intention = nullptr; // why it is meant to differ
	};

	TArray<const FReportedTest*> FailInEngineOnly;
	TArray<const FReportedTest*> FailHereOnly;
	TArray<const FReportedTest*> FailInBoth; // as the engine reported them
	TArray<FString> NotInReport;
	TArray<FString> NotHere;
	TArray<FString> UnfinishedInEngine;
	TArray<FBeliefDifference> Beliefs;

	/** Whether there is nothing to do but for what is meant to differ. */
	bool Agrees() const;
};

namespace AutomationComparison
{
	/** Both must outlive the result. Tests of the report whose path does not begin with "Velmorant." are left out. */
	FAutomationComparison Make(const FAutomationReport& InEngine, const FAutomationReport& Here);

	void Print(const FAutomationComparison& Comparison, const FAutomationReport& InEngine);
}
