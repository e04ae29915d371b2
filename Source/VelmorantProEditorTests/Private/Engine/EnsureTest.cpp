// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Support/Beliefs.h"
#include "Support/LogListener.h"
#include "Support/QuietTest.h"
#include "Support/TestFlags.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace EnsureTest
{
	bool FailAgain(int32 Number)
	{
		return ensure(Number < 0);
	}
}

IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(FVelmorantEnsureTest, FVelmorantQuietTest, "Velmorant.Engine.Ensure.OncePerPlace", VelmorantTests::Flags)

bool FVelmorantEnsureTest::RunTest(const FString&)
{
	const FVelmorantLogListener Log;
	int32 NumTrue = 0;
	for (int32 Number = 0; Number < 3; ++Number)
	{
		NumTrue += EnsureTest::FailAgain(Number) ? 1 : 0;
	}
	TestEqual(TEXT("it has the value of its condition"), NumTrue, 0);
	TestTrue(TEXT("and the value true, too"), EnsureTest::FailAgain(-1));
	VelmorantTests::RecordBelief(*this, TEXT("reports of an ensure that fails three times"), Log.Count(TEXT("Ensure condition failed: Number < 0")));
	return true;
}

DEFINE_LOG_CATEGORY_STATIC(LogVelmorantTests, Log, All);

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantLogTest, "Velmorant.Engine.Log.Lines", VelmorantTests::Flags)

bool FVelmorantLogTest::RunTest(const FString&)
{
	AddExpectedErrorPlain(TEXT("Velmorant tower 7"), EAutomationExpectedErrorFlags::Contains, 1);
	const FVelmorantLogListener Log;
	UE_LOG(LogVelmorantTests, Warning, TEXT("Velmorant tower %d"), 7);
	UE_LOG(LogVelmorantTests, Verbose, TEXT("Velmorant is not said aloud"));
	TestEqual(TEXT("devices hear each line with its category and level"), Log.Count(TEXT("LogVelmorantTests Warning Velmorant tower 7")), 1);
	TestEqual(TEXT("but what is beyond the category's level"), Log.Count(TEXT("Velmorant is not said aloud")), 0);
	return true;
}

#endif
