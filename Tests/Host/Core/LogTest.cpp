// Copyright Velmorant. All Rights Reserved.

#include "Logging/LogMacros.h"

#include "CoreGlobals.h"
#include "HostAssertions.h"
#include "HostLog.h"
#include "HostState.h"
#include "Misc/OutputDeviceRedirector.h"
#include "TestPrinters.h"

DEFINE_LOG_CATEGORY_STATIC(LogHostLogTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogHostLogTestQuiet, Warning, Warning);

namespace LogTest
{
	class FLogTest : public testing::Test
	{
	protected:
		FLogTest() { HostLog::Clear(); }
		virtual ~FLogTest() override { HostLog::Clear(); }

		static TArray<FString> Lines()
		{
			TArray<FString> Result;
			for (const FHostLogLine& Line : HostLog::GetLines())
			{
				Result.Add(Line.ToString());
			}
			return Result;
		}
	};

	using Log = FLogTest;

	/** A device that keeps what it gets, and may remove itself while it gets it. */
	class FKeepingDevice : public FOutputDevice
	{
	public:
		explicit FKeepingDevice(bool bInOnlyOne)
			: bOnlyOne(bInOnlyOne)
		{
			GLog->AddOutputDevice(this);
		}
		virtual ~FKeepingDevice() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Kept.Add(FString::Printf(TEXT("%s/%s/%s"), *Category.ToString(), ToString(Verbosity), V));
			if (bOnlyOne)
			{
				GLog->RemoveOutputDevice(this);
			}
		}

		TArray<FString> Kept;

	private:
		const bool bOnlyOne;
	};

	int32 FailAt(int32 Place)
	{
		bool bOk = true;
		bOk &= Place == 1 ? ensure(Place != 1) : true;
		bOk &= Place == 2 ? ensureMsgf(Place != 2, TEXT("place %d"), Place) : true;
		return bOk ? 0 : Place;
	}
}

using namespace LogTest;

TEST_F(Log, LinesSayCategoryAndLevelExceptForLog)
{
	UE_LOG(LogTemp, Log, TEXT("plain"));
	UE_LOG(LogHostLogTest, Warning, TEXT("No library at %s; %d left."), *FString(TEXT("/Game/Ä")), 2);
	UE_LOG(LogHostLogTest, Error, TEXT("bad"));
	UE_LOG(LogHostLogTest, Display, TEXT("shown"));
	EXPECT_EQ(Lines(), (TArray<FString>{TEXT("LogTemp: plain"), TEXT("LogHostLogTest: Warning: No library at /Game/Ä; 2 left."), TEXT("LogHostLogTest: Error: bad"), TEXT("LogHostLogTest: Display: shown")}));
}

TEST_F(Log, DropsWhatTheCategoryDoesNotWantWithoutEvaluatingIt)
{
	int32 NumEvaluated = 0;
	UE_LOG(LogHostLogTest, Verbose, TEXT("%d"), ++NumEvaluated);
	UE_LOG(LogHostLogTestQuiet, Log, TEXT("%d"), ++NumEvaluated);
	UE_CLOG(NumEvaluated > 0, LogHostLogTest, Error, TEXT("%d"), ++NumEvaluated);
	EXPECT_EQ(NumEvaluated, 0);
	EXPECT_EQ(HostLog::GetLines().Num(), 0);

	LogHostLogTest.SetVerbosity(ELogVerbosity::Verbose);
	UE_LOG(LogHostLogTest, Verbose, TEXT("%d"), ++NumEvaluated);
	LogHostLogTest.SetVerbosity(ELogVerbosity::Log);
	EXPECT_EQ(Lines(), (TArray<FString>{TEXT("LogHostLogTest: Verbose: 1")}));
	LogHostLogTestQuiet.SetVerbosity(ELogVerbosity::All);
	EXPECT_TRUE(LogHostLogTestQuiet.IsSuppressed(ELogVerbosity::Display)) << "not beyond what was compiled in";
}

TEST_F(Log, DevicesGetEachLineUntilTheyAreRemoved)
{
	FKeepingDevice OnlyOne(true);
	FKeepingDevice All(false);
	UE_LOG(LogHostLogTest, Warning, TEXT("first"));
	UE_LOG(LogHostLogTest, Log, TEXT("second"));
	EXPECT_EQ(OnlyOne.Kept, (TArray<FString>{TEXT("LogHostLogTest/Warning/first")}));
	EXPECT_EQ(All.Kept, (TArray<FString>{TEXT("LogHostLogTest/Warning/first"), TEXT("LogHostLogTest/Log/second")}));
}

TEST_F(Log, AFailedCheckNamesItsExpressionAndEndsTheProgram)
{
	const int32 Value = 3;
	try
	{
		check(Value == 4 && "must be four");
		FAIL() << "went on";
	}
	catch (const FHostAssertionFailure& Failure)
	{
		EXPECT_EQ(Failure.GetExpression(), "Value == 4 && \"must be four\"");
		EXPECT_TRUE(FString(Failure.what()).StartsWith(TEXT("Assertion failed: Value == 4 && \"must be four\" [File:")));
	}
	ASSERT_EQ(HostLog::GetLines().Num(), 1);
	EXPECT_EQ(HostLog::GetLines()[0].Verbosity, ELogVerbosity::Fatal);
	EXPECT_THROW(checkf(Value == 4, TEXT("is %d"), Value), FHostAssertionFailure);
	EXPECT_TRUE(HostLog::GetLines().Last().Text.EndsWith(TEXT("is 3")));
	EXPECT_THROW(UE_LOG(LogHostLogTest, Fatal, TEXT("the end")), FHostAssertionFailure);
	EXPECT_THROW(checkNoEntry(), FHostAssertionFailure);
	EXPECT_NO_THROW(check(Value == 3));
}

TEST_F(Log, AFailedEnsureReportsOncePerPlaceAndEditorAndGoesOn)
{
	EXPECT_EQ(FailAt(0), 0);
	EXPECT_EQ(HostLog::GetLines().Num(), 0);
	EXPECT_EQ(FailAt(1), 1);
	EXPECT_EQ(FailAt(1), 1) << "false every time";
	EXPECT_EQ(FailAt(2), 2);
	ASSERT_EQ(HostLog::GetLines().Num(), 2) << "but reported once per place";
	EXPECT_TRUE(HostLog::GetLines()[0].ToString().StartsWith(TEXT("LogOutputDevice: Error: Ensure condition failed: Place != 1 [File:")));
	EXPECT_TRUE(HostLog::GetLines()[1].Text.EndsWith(TEXT("place 2")));

	HostState::DestroyAll(); // the editor goes down; the next one reports again
	EXPECT_EQ(FailAt(1), 1);
	EXPECT_EQ(HostLog::GetLines().Num(), 3);
}
