// Copyright Velmorant. All Rights Reserved.

#include "HostAutomation.h"

#include "Containers/StringConv.h"
#include "HostAssertions.h"
#include "HostClock.h"

namespace HostAutomationImpl
{
	const double SecondsAllowed = 60.0;

	void RunToEnd(const FAutomationTestInfo& Test, TFunctionRef<void()> NextFrame, FAutomationTestExecutionInfo& OutInfo)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		const double Start = HostClock::Now();
		Framework.StartTestByName(Test.GetTestName(), 0, Test.GetFullTestPath());
		while (!Framework.ExecuteLatentCommands())
		{
			NextFrame();
			if (HostClock::Now() - Start > SecondsAllowed)
			{
				Framework.GetCurrentTest()->AddError(FString::Printf(TEXT("A latent command was not done after %.0f seconds."), SecondsAllowed));
				Framework.DequeueAllCommands();
			}
		}
		Framework.StopTest(OutInfo);
	}

	bool ContainsAny(const FString& Path, const TArray<FString>& Parts)
	{
		return Parts.IsEmpty() || Parts.ContainsByPredicate([&Path](const FString& Part) { return Path.Contains(Part); });
	}
}

TArray<FAutomationTestInfo> HostAutomation::Find(const FString& Filter)
{
	TArray<FString> Parts;
	Filter.ParseIntoArray(Parts, TEXT("+"));
	TArray<FAutomationTestInfo> All;
	FAutomationTestFramework::Get().SetRequestedTestFilter(EAutomationTestFlags_FilterMask);
	FAutomationTestFramework::Get().GetValidTestNames(All);
	return All.FilterByPredicate([&Parts](const FAutomationTestInfo& Test) { return HostAutomationImpl::ContainsAny(Test.GetFullTestPath(), Parts); });
}

HostAutomation::FResult HostAutomation::Run(const FAutomationTestInfo& Test, TFunctionRef<void()> NextFrame, bool& bOutAlive)
{
	FResult Result(Test);
	Result.Started = FDateTime::Now();
	bOutAlive = true;
	try
	{
		HostAutomationImpl::RunToEnd(Test, NextFrame, Result.Info);
	}
	catch (const FHostAssertionFailure& Failure)
	{
		bOutAlive = false;
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		Framework.DequeueAllCommands();
		Framework.StopTest(Result.Info);
		Result.Info.bSuccessful = false;
		Result.Info.AddEvent(FAutomationExecutionEntry(FAutomationEvent(EAutomationEventType::Error, FString(UTF8_TO_TCHAR(Failure.what())) + TEXT(" This ends an engine, hence the run."))));
	}
	Result.State = Result.Info.bSuccessful ? EState::Success : EState::Fail;
	return Result;
}
