// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationText.h"

#include "Console.h"

namespace AutomationText
{
	FString DescribeVerdict(const FReportedTest& Test)
	{
		if (Test.Passed())
		{
			return Test.Count(EAutomationEventType::Warning) > 0 ? TEXT("warned") : TEXT("passed");
		}
		return Test.IsUnfinished() ? TEXT("not run") : TEXT("FAILED");
	}

	FString DescribeFault(const FAutomationExecutionEntry& Entry)
	{
		const FString Place = Entry.Filename.IsEmpty() ? FString() : FString::Printf(TEXT("%s(%d): "), *Entry.Filename, Entry.LineNumber);
		return Place + (Entry.Event.Type == EAutomationEventType::Error ? TEXT("error: ") : TEXT("warning: ")) + Entry.Event.Message;
	}
}

bool AutomationText::IsOfSuite(const FString& Path)
{
	return Path.StartsWith(TEXT("Velmorant."));
}

void AutomationText::PrintTest(const FReportedTest& Test)
{
	Console::Print(FString::Printf(TEXT("%-7s %7.1f ms  %s"), *DescribeVerdict(Test), Test.Seconds * 1000.0, *Test.Path), Test.Passed() ? ETextStyle::Plain : ETextStyle::Bad);
	PrintFaults(Test, TEXT("  "));
	if (Test.State == TEXT("Fail") && Test.Count(EAutomationEventType::Error) == 0)
	{
		Console::Print(FString::Printf(TEXT("  %s(%d): error: The test says that it failed, without a reason."), *Test.SourceFile, Test.SourceFileLine));
	}
}

void AutomationText::PrintFaults(const FReportedTest& Test, const TCHAR* Indent)
{
	for (const FAutomationExecutionEntry& Entry : Test.Entries)
	{
		if (Entry.Event.Type != EAutomationEventType::Info)
		{
			Console::Print(Indent + DescribeFault(Entry), Entry.Event.Type == EAutomationEventType::Error ? ETextStyle::Bad : ETextStyle::Warning);
		}
	}
}

void AutomationText::PrintTotals(const FAutomationReport& Report)
{
	FString Totals = FString::Printf(TEXT("%d tests, %d passed"), Report.Tests.Num(), Report.CountPassed());
	Totals += Report.CountWithWarnings() > 0 ? FString::Printf(TEXT(" (%d with warnings)"), Report.CountWithWarnings()) : FString();
	Totals += Report.CountFailed() > 0 ? FString::Printf(TEXT(", %d failed"), Report.CountFailed()) : FString();
	Totals += Report.CountUnfinished() > 0 ? FString::Printf(TEXT(", %d not run"), Report.CountUnfinished()) : FString();
	const bool bAllPassed = Report.CountPassed() == Report.Tests.Num();
	Console::Print(Totals + FString::Printf(TEXT(", %.2f s"), Report.GetSeconds()), bAllPassed ? ETextStyle::Good : ETextStyle::Bad);
}
