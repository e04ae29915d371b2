// Copyright Velmorant. All Rights Reserved.

#include "Automation/AutomationComparison.h"

#include "Automation/AutomationText.h"
#include "Automation/Beliefs.h"
#include "Console.h"

bool FAutomationComparison::Agrees() const
{
	const bool bTests = FailInEngineOnly.IsEmpty() && FailHereOnly.IsEmpty() && FailInBoth.IsEmpty() && NotInReport.IsEmpty() && NotHere.IsEmpty() && UnfinishedInEngine.IsEmpty();
	return bTests && !Beliefs.ContainsByPredicate([](const FBeliefDifference& Belief) { return Belief.Intention == nullptr; });
}

namespace AutomationComparison
{
	void CompareBeliefs(const FReportedTest& InEngine, const FReportedTest& Here, FAutomationComparison& Out)
	{
		TArray<FBelief> Left = Beliefs::Of(InEngine);
		for (const FBelief& Belief : Beliefs::Of(Here))
		{
			const int32 Index = Left.IndexOfByPredicate([&Belief](const FBelief& Other) { return Other.Name.Equals(Belief.Name); });
			const FString Value = Index == INDEX_NONE ? FString() : Left[Index].Value;
			if (!Value.Equals(Belief.Value))
			{
				Out.Beliefs.Add({Belief.Name, Value, Belief.Value, Beliefs::FindIntention(Belief.Name)});
			}
			if (Index != INDEX_NONE)
			{
				Left.RemoveAt(Index);
			}
		}
		for (const FBelief& Belief : Left)
		{
			Out.Beliefs.Add({Belief.Name, Belief.Value, FString(), Beliefs::FindIntention(Belief.Name)});
		}
	}

	void CompareVerdicts(const FReportedTest& InEngine, const FReportedTest& Here, FAutomationComparison& Out)
	{
		const bool bPassedInEngine = InEngine.Passed();
		if (InEngine.IsUnfinished())
		{
			Out.UnfinishedInEngine.Add(InEngine.Path);
		}
		else if (bPassedInEngine && !Here.Passed())
		{
			Out.FailHereOnly.Add(&Here);
		}
		else if (!bPassedInEngine)
		{
			(Here.Passed() ? Out.FailInEngineOnly : Out.FailInBoth).Add(&InEngine);
		}
	}

	void PrintPaths(const TCHAR* Title, const TArray<FString>& Paths)
	{
		if (!Paths.IsEmpty())
		{
			Console::Print(Title);
		}
		for (const FString& Path : Paths)
		{
			Console::Print(TEXT("  ") + Path);
		}
	}

	void PrintTests(const TCHAR* Title, const TArray<const FReportedTest*>& Tests)
	{
		if (!Tests.IsEmpty())
		{
			Console::Print(Title);
		}
		for (const FReportedTest* Test : Tests)
		{
			Console::Print(TEXT("  ") + Test->Path + TEXT(" (") + Test->State + TEXT(")"));
			AutomationText::PrintFaults(*Test, TEXT("    "));
		}
	}

	FString Describe(const FString& Value)
	{
		return Value.IsEmpty() ? FString(TEXT("not recorded")) : Value;
	}

	void PrintBeliefs(const FAutomationComparison& Comparison)
	{
		if (!Comparison.Beliefs.IsEmpty())
		{
			Console::Print(TEXT("Beliefs with other values:"));
		}
		for (const FAutomationComparison::FBeliefDifference& Belief : Comparison.Beliefs)
		{
			Console::Print(TEXT("  ") + Belief.Name);
			Console::Print(TEXT("    engine: ") + Describe(Belief.InEngine));
			Console::Print(TEXT("    host:   ") + Describe(Belief.Here));
			if (Belief.Intention)
			{
				Console::Print(FString(TEXT("    intended: ")) + Belief.Intention);
			}
		}
	}
}

FAutomationComparison AutomationComparison::Make(const FAutomationReport& InEngine, const FAutomationReport& Here)
{
	FAutomationComparison Comparison;
	for (const FReportedTest& Test : Here.Tests)
	{
		if (const FReportedTest* const Other = InEngine.Find(Test.Path))
		{
			CompareVerdicts(*Other, Test, Comparison);
			CompareBeliefs(*Other, Test, Comparison);
		}
		else
		{
			Comparison.NotInReport.Add(Test.Path);
		}
	}
	for (const FReportedTest& Test : InEngine.Tests)
	{
		if (AutomationText::IsOfSuite(Test.Path) && !Here.Find(Test.Path))
		{
			Comparison.NotHere.Add(Test.Path);
		}
	}
	return Comparison;
}

void AutomationComparison::Print(const FAutomationComparison& Comparison, const FAutomationReport& InEngine)
{
	Console::Print(FString::Printf(TEXT("Engine: %s, %d tests"), *InEngine.Origin, InEngine.Tests.Num()));
	PrintTests(TEXT("Fail in the engine only:"), Comparison.FailInEngineOnly);
	PrintTests(TEXT("Fail in the host only:"), Comparison.FailHereOnly);
	PrintTests(TEXT("Fail in both:"), Comparison.FailInBoth);
	PrintPaths(TEXT("Not in the engine's report:"), Comparison.NotInReport);
	PrintPaths(TEXT("Not known to the host:"), Comparison.NotHere);
	PrintPaths(TEXT("Not finished in the engine:"), Comparison.UnfinishedInEngine);
	PrintBeliefs(Comparison);
	Console::Print(Comparison.Agrees() ? TEXT("Engine and host agree.") : TEXT("Engine and host differ."), Comparison.Agrees() ? ETextStyle::Good : ETextStyle::Bad);
}
