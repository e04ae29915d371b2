// Copyright Velmorant. All Rights Reserved.

#include "CoreGlobals.h"
#include "HostClock.h"
#include "Misc/App.h"
#include "Misc/AutomationTest.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"

#include <chrono>

/** Hands the log to the test that runs. */
class FAutomationLog final : public FOutputDevice
{
public:
	explicit FAutomationLog(FAutomationTestBase& InTest)
		: Test(InTest)
	{
		GLog->AddOutputDevice(this);
	}

	virtual ~FAutomationLog() override { GLog->RemoveOutputDevice(this); }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		Test.AddLogLine(Verbosity, Category.IsNone() ? FString(V) : Category.ToString() + TEXT(": ") + V);
	}

private:
	FAutomationTestBase& Test;
};

namespace AutomationTestFramework
{
	/** Real time: the host's clock stands still while a test works. */
	double GetSeconds()
	{
		return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
	}

	FString GetLastPart(const FString& Path)
	{
		FString Before;
		FString Last = Path;
		Path.Split(TEXT("."), &Before, &Last, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		return Last;
	}
}

FAutomationTestFramework::FAutomationTestFramework() = default;
FAutomationTestFramework::~FAutomationTestFramework() = default;

FAutomationTestFramework& FAutomationTestFramework::Get()
{
	static FAutomationTestFramework Framework; // outlives the tests, whose constructors make it
	return Framework;
}

bool FAutomationTestFramework::RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister)
{
	for (const FAutomationTestBase* Test : Tests)
	{
		checkf(!Test->GetTestName().Equals(InTestNameToRegister), TEXT("Two tests are called %s"), *InTestNameToRegister);
	}
	Tests.Add(InTestToRegister);
	return true;
}

bool FAutomationTestFramework::UnregisterAutomationTest(const FString& InTestNameToUnregister)
{
	return Tests.RemoveAll([&InTestNameToUnregister](const FAutomationTestBase* Test) { return Test->GetTestName().Equals(InTestNameToUnregister); }) > 0;
}

void FAutomationTestFramework::SetRequestedTestFilter(const EAutomationTestFlags InRequestedTestFlags)
{
	RequestedTestFilter = InRequestedTestFlags;
}

bool FAutomationTestFramework::CanRun(const FAutomationTestBase& Test) const
{
	const EAutomationTestFlags Flags = Test.GetTestFlags();
	const EAutomationTestFlags Context = IsRunningCommandlet() ? EAutomationTestFlags::CommandletContext : EAutomationTestFlags::EditorContext;
	const bool bMissesScreen = EnumHasAnyFlags(Flags, EAutomationTestFlags::NonNullRHI) && !FApp::CanEverRender();
	const bool bMissesPerson = EnumHasAnyFlags(Flags, EAutomationTestFlags::RequiresUser) && FApp::IsUnattended();
	return EnumHasAnyFlags(Flags, Context) && EnumHasAnyFlags(Flags, RequestedTestFilter) && !EnumHasAnyFlags(Flags, EAutomationTestFlags::Disabled) && !bMissesScreen && !bMissesPerson;
}

void FAutomationTestFramework::GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	TestInfo.Empty();
	for (const FAutomationTestBase* Test : Tests)
	{
		TArray<FString> Paths;
		TArray<FString> Parameters;
		if (CanRun(*Test))
		{
			Test->GetTests(Paths, Parameters);
		}
		for (int32 Index = 0; Index < Paths.Num(); ++Index)
		{
			const FString Name = Parameters[Index].IsEmpty() ? Test->GetTestName() : Test->GetTestName() + TEXT(" ") + Parameters[Index];
			TestInfo.Emplace(AutomationTestFramework::GetLastPart(Paths[Index]), Paths[Index], Name, Test->GetTestSourceFileName(), Test->GetTestSourceFileLine());
		}
	}
	TestInfo.Sort([](const FAutomationTestInfo& A, const FAutomationTestInfo& B) { return A.GetFullTestPath() < B.GetFullTestPath(); });
}

void FAutomationTestFramework::StartTestByName(const FString& InTestToRun, const int32, const FString&)
{
	checkf(CurrentTest == nullptr, TEXT("A test runs already"));
	FString Name = InTestToRun;
	FString Parameters;
	InTestToRun.Split(TEXT(" "), &Name, &Parameters);
	FAutomationTestBase* const* const Found = Tests.FindByPredicate([&Name](const FAutomationTestBase* Test) { return Test->GetTestName().Equals(Name); });
	if (!Found)
	{
		UE_LOG(LogCore, Error, TEXT("Test %s does not exist and could not be run."), *InTestToRun);
		return;
	}
	CurrentTest = *Found;
	CurrentTest->Begin();
	StartSeconds = AutomationTestFramework::GetSeconds();
	Log = MakeUnique<FAutomationLog>(*CurrentTest);
	CurrentTest->bReturned = CurrentTest->RunTest(Parameters);
}

void FAutomationTestFramework::EnqueueLatentCommand(TSharedPtr<IAutomationLatentCommand> NewCommand)
{
	LatentCommands.Add(MoveTemp(NewCommand));
}

bool FAutomationTestFramework::ExecuteLatentCommands()
{
	while (!LatentCommands.IsEmpty())
	{
		const TSharedPtr<IAutomationLatentCommand> Next = LatentCommands[0]; // it may add others
		if (!Next->Update())
		{
			return false;
		}
		LatentCommands.RemoveAt(0);
	}
	return true;
}

bool FAutomationTestFramework::StopTest(FAutomationTestExecutionInfo& OutExecutionInfo)
{
	checkf(CurrentTest != nullptr, TEXT("No test runs"));
	checkf(LatentCommands.IsEmpty(), TEXT("Latent commands of the test wait"));
	Log.Reset();
	CurrentTest->Finish(OutExecutionInfo);
	OutExecutionInfo.Duration = AutomationTestFramework::GetSeconds() - StartSeconds;
	CurrentTest = nullptr;
	return OutExecutionInfo.bSuccessful;
}
