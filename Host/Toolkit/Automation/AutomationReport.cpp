// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationReport.h"

int32 FReportedTest::Count(EAutomationEventType Type) const
{
	return Entries.FilterByPredicate([Type](const FAutomationExecutionEntry& Entry) { return Entry.Event.Type == Type; }).Num();
}

const FReportedTest* FAutomationReport::Find(const FString& Path) const
{
	return Tests.FindByPredicate([&Path](const FReportedTest& Test) { return Test.Path.Equals(Path); });
}

int32 FAutomationReport::CountPassed() const
{
	return Tests.FilterByPredicate([](const FReportedTest& Test) { return Test.Passed(); }).Num();
}

int32 FAutomationReport::CountWithWarnings() const
{
	return Tests.FilterByPredicate([](const FReportedTest& Test) { return Test.Passed() && Test.Count(EAutomationEventType::Warning) > 0; }).Num();
}

int32 FAutomationReport::CountFailed() const
{
	return Tests.FilterByPredicate([](const FReportedTest& Test) { return Test.State == TEXT("Fail"); }).Num();
}

int32 FAutomationReport::CountUnfinished() const
{
	return Tests.FilterByPredicate([](const FReportedTest& Test) { return Test.IsUnfinished(); }).Num();
}

double FAutomationReport::GetSeconds() const
{
	double Seconds = 0.0;
	for (const FReportedTest& Test : Tests)
	{
		Seconds += Test.Seconds;
	}
	return Seconds;
}

FReportedTest AutomationReport::Make(const HostAutomation::FResult& Result)
{
	const TCHAR* const States[] = {TEXT("Success"), TEXT("Fail"), TEXT("NotRun")};
	FReportedTest Test;
	Test.Path = Result.Test.GetFullTestPath();
	Test.State = States[static_cast<int32>(Result.State)];
	Test.SourceFile = Result.Test.GetSourceFile();
	Test.SourceFileLine = Result.Test.GetSourceFileLine();
	Test.Seconds = Result.Info.Duration;
	Test.Started = Result.Started;
	Test.Entries = Result.Info.GetEntries();
	return Test;
}
