// Copyright Velmorant. All Rights Reserved.
// How the framework judges tests: those below are run by it, and this program looks at the verdicts.

#include "Containers/StringConv.h"
#include "HostAutomation.h"
#include "HostClock.h"
#include "HostState.h"
#include "Logging/LogMacros.h"

#include <gmock/gmock.h>
#include <string>

DEFINE_LOG_CATEGORY_STATIC(LogAutomationSample, Log, All);

namespace AutomationTest
{
	constexpr EAutomationTestFlags Flags = EAutomationTestFlags::EditorContext | EAutomationTestFlags::ProductFilter;

	/** What the sample test does this time. */
	TFunction<bool(FAutomationTestBase&)> Body;

	class FUntilTrue : public IAutomationLatentCommand
	{
	public:
		explicit FUntilTrue(TFunction<bool()> InIsDone)
			: IsDone(MoveTemp(InIsDone))
		{
		}

		virtual bool Update() override { return IsDone(); }

	private:
		TFunction<bool()> IsDone;
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FSampleTest, "Sample.Body", AutomationTest::Flags)
bool FSampleTest::RunTest(const FString&)
{
	return AutomationTest::Body(*this);
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FSampleOfGamesTest, "Sample.OfGames", EAutomationTestFlags::ClientContext | EAutomationTestFlags::ProductFilter)
bool FSampleOfGamesTest::RunTest(const FString&)
{
	return true;
}

class Automation : public testing::Test
{
protected:
	virtual void TearDown() override
	{
		AutomationTest::Body = nullptr;
		HostState::DestroyAll();
	}

	HostAutomation::FResult Run(TFunction<bool(FAutomationTestBase&)> Body)
	{
		AutomationTest::Body = MoveTemp(Body);
		const TArray<FAutomationTestInfo> Tests = HostAutomation::Find(TEXT("sample.b"));
		EXPECT_EQ(Tests.Num(), 1);
		return HostAutomation::Run(
			Tests[0], [] { HostClock::Advance(0.1); }, bAlive);
	}

	/** Messages, with the line of those that have one: "Error 12: …". */
	static std::vector<std::string> Say(const HostAutomation::FResult& Result)
	{
		const char* const Types[] = {"Info", "Warning", "Error"};
		std::vector<std::string> Lines;
		for (const FAutomationExecutionEntry& Entry : Result.Info.GetEntries())
		{
			Lines.push_back(std::string(Types[static_cast<int>(Entry.Event.Type)]) + ": " + std::string(TCHAR_TO_UTF8(*Entry.Event.Message)));
		}
		return Lines;
	}

	bool bAlive = true;
};

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(Automation, OffersWhatCanRunInAnEditor)
{
	EXPECT_TRUE(HostAutomation::Find(TEXT("OfGames")).IsEmpty());
	EXPECT_EQ(HostAutomation::Find(TEXT("nowhere+SAMPLE.BODY")).Num(), 1) << "any of the parts, in any case";
}

TEST_F(Automation, JudgesByChecksLogAndResult)
{
	struct FCase
	{
		const char* Behaviour;
		TFunction<bool(FAutomationTestBase&)> Body;
		bool bPasses;
		std::vector<std::string> Said;
	};
	const FCase Cases[] = {
		{"nothing wrong", [](FAutomationTestBase&) { return true; }, true, {}},
		{"the test says so", [](FAutomationTestBase&) { return false; }, false, {}},
		{"a check that holds", [](FAutomationTestBase& Sample) { return Sample.TestEqual(TEXT("n"), 3, 3) && Sample.TestNull(TEXT("p"), nullptr); }, true, {}},
		{"a check that does not, although the test goes on", [](FAutomationTestBase& Sample) { Sample.TestEqual(TEXT("n"), 3, 4); return true; }, false, {"Error: Expected 'n' to be 4, but it was 3."}},
		{"strings of other case are equal", [](FAutomationTestBase& Sample) { return Sample.TestEqual(TEXT("s"), TEXT("oak"), TEXT("OAK")); }, true, {}},
		{"unless asked for", [](FAutomationTestBase& Sample) { Sample.TestEqualSensitive(TEXT("s"), TEXT("oak"), TEXT("OAK")); return true; }, false, {"Error: Expected 's' to be \"OAK\", but it was \"oak\"."}},
		{"a message is no fault", [](FAutomationTestBase& Sample) { Sample.AddInfo(TEXT("hello")); return true; }, true, {"Info: hello"}},
		{"a logged warning neither", [](FAutomationTestBase&) { UE_LOG(LogAutomationSample, Warning, TEXT("careful")); return true; }, true, {"Warning: LogAutomationSample: careful"}},
		{"a logged error is", [](FAutomationTestBase&) { UE_LOG(LogAutomationSample, Error, TEXT("broken")); return true; }, false, {"Error: LogAutomationSample: broken"}},
		{"unless it was expected", [](FAutomationTestBase& Sample) { Sample.AddExpectedErrorPlain(TEXT("broken")); UE_LOG(LogAutomationSample, Error, TEXT("broken")); return true; }, true, {}},
		{"as often as said", [](FAutomationTestBase& Sample) { Sample.AddExpectedErrorPlain(TEXT("broken"), EAutomationExpectedErrorFlags::Contains, 2); UE_LOG(LogAutomationSample, Error, TEXT("broken")); return true; }, false, {"Error: Expected 'broken' to be logged 2 times, but it was 1 times."}},
		{"at least once for none", [](FAutomationTestBase& Sample) { Sample.AddExpectedErrorPlain(TEXT("broken"), EAutomationExpectedErrorFlags::Contains, 0); return true; }, false, {"Error: Expected 'broken' to be logged at least once, but it was 0 times."}},
		{"or any number", [](FAutomationTestBase& Sample) { Sample.AddExpectedErrorPlain(TEXT("broken"), EAutomationExpectedErrorFlags::Contains, -1); return true; }, true, {}},
	};
	for (const FCase& Case : Cases)
	{
		const HostAutomation::FResult Result = Run(Case.Body);
		EXPECT_EQ(Result.State == HostAutomation::EState::Success, Case.bPasses) << Case.Behaviour;
		EXPECT_EQ(Say(Result), Case.Said) << Case.Behaviour;
	}
}

TEST_F(Automation, AnEnsureFailsTheTest)
{
	const HostAutomation::FResult Result = Run([](FAutomationTestBase&) { return !ensureAlways(1 > 2); });
	EXPECT_EQ(Result.State, HostAutomation::EState::Fail);
	EXPECT_THAT(Say(Result), ElementsAre(HasSubstr("Ensure condition failed: 1 > 2")));
	EXPECT_TRUE(bAlive) << "an ensure goes on";
}

TEST_F(Automation, AFailedCheckFailsTheTestAndEndsTheRun)
{
	const HostAutomation::FResult Result = Run([](FAutomationTestBase&) {
		check(1 > 2);
		return true;
	});
	EXPECT_EQ(Result.State, HostAutomation::EState::Fail);
	EXPECT_FALSE(bAlive) << "a failed check ends the editor";
	EXPECT_THAT(Say(Result).back(), HasSubstr("Assertion failed: 1 > 2"));
	Run([](FAutomationTestBase&) { return true; });
	EXPECT_TRUE(bAlive) << "the framework itself goes on";
}

TEST_F(Automation, NamesFileAndLine)
{
	const HostAutomation::FResult Result = Run([](FAutomationTestBase& Sample) { return Sample.TestTrue(TEXT("no"), false); });
	ASSERT_EQ(Result.Info.GetEntries().Num(), 1);
	EXPECT_TRUE(Result.Info.GetEntries()[0].Filename.EndsWith(TEXT("Core/AutomationTest.cpp")));
	EXPECT_EQ(Result.Info.GetEntries()[0].LineNumber, __LINE__ - 3);
}

TEST_F(Automation, LatentCommandsRunInTurnAndTheirChecksCount)
{
	TArray<FString> Order;
	const HostAutomation::FResult Result = Run([&Order](FAutomationTestBase& Sample) {
		const TSharedRef<int32> NumFrames = MakeShared<int32>(0);
		ADD_LATENT_AUTOMATION_COMMAND(AutomationTest::FUntilTrue([&Order, NumFrames] {
			Order.Add(TEXT("first"));
			return ++*NumFrames == 2;
		}));
		ADD_LATENT_AUTOMATION_COMMAND(FDelayedFunctionLatentCommand([&Order, &Sample] { Order.Add(TEXT("second")); Sample.TestTrue(TEXT("late"), false); }, 0.35f));
		Order.Add(TEXT("body"));
		return true;
	});
	EXPECT_EQ(Order, (TArray<FString>{TEXT("body"), TEXT("first"), TEXT("first"), TEXT("second")}));
	EXPECT_NEAR(HostClock::Now(), 0.5, 0.001) << "a frame for the first, four for the delay";
	EXPECT_EQ(Result.State, HostAutomation::EState::Fail);
}

TEST_F(Automation, ACommandThatNeverEndsFailsTheTest)
{
	const HostAutomation::FResult Result = Run([](FAutomationTestBase&) {
		ADD_LATENT_AUTOMATION_COMMAND(AutomationTest::FUntilTrue([] { return false; }));
		return true;
	});
	EXPECT_THAT(Say(Result), ElementsAre("Error: A latent command was not done after 60 seconds."));
}
