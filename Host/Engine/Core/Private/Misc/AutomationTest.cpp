// Copyright Velmorant. All Rights Reserved.

#include "Misc/AutomationTest.h"

#include "Containers/StringConv.h"
#include "HostClock.h"
#include "Misc/OutputDeviceHelper.h"

bool FAutomationTestBase::bSuppressLogErrors = false;
bool FAutomationTestBase::bSuppressLogWarnings = false;
bool FAutomationTestBase::bElevateLogWarningsToErrors = false;

int32 FAutomationTestExecutionInfo::Count(EAutomationEventType Type) const
{
	int32 Number = 0;
	for (const FAutomationExecutionEntry& Entry : Entries)
	{
		Number += Entry.Event.Type == Type ? 1 : 0;
	}
	return Number;
}

bool FDelayedFunctionLatentCommand::Update()
{
	if (StartTime < 0.0)
	{
		StartTime = HostClock::Now();
	}
	if (HostClock::Now() - StartTime < Delay)
	{
		return false;
	}
	Callback();
	return true;
}

FAutomationTestBase::FAutomationTestBase(const FString& InName, const bool)
	: TestName(InName)
{
	FAutomationTestFramework::Get().RegisterAutomationTest(TestName, this);
}

FAutomationTestBase::~FAutomationTestBase()
{
	FAutomationTestFramework::Get().UnregisterAutomationTest(TestName);
}

void FAutomationTestBase::Begin()
{
	ExpectedMessages.Empty();
	ExecutionInfo = FAutomationTestExecutionInfo();
}

void FAutomationTestBase::Finish(FAutomationTestExecutionInfo& OutInfo)
{
	for (const FExpectedMessage& Expected : ExpectedMessages)
	{
		const bool bMet = Expected.Occurrences == 0 ? Expected.NumSeen > 0 : Expected.Occurrences < 0 || Expected.NumSeen == Expected.Occurrences;
		if (!bMet)
		{
			ExecutionInfo.AddEvent(FAutomationExecutionEntry(FAutomationEvent(EAutomationEventType::Error, FString::Printf(TEXT("Expected '%s' to be logged %s, but it was %d times."), *Expected.Text, Expected.Occurrences == 0 ? TEXT("at least once") : *FString::Printf(TEXT("%d times"), Expected.Occurrences), Expected.NumSeen))));
		}
	}
	ExecutionInfo.bSuccessful = bReturned && !HasAnyErrors();
	OutInfo = ExecutionInfo;
}

void FAutomationTestBase::Add(EAutomationEventType Type, const FString& Message, const FSourceLocation& Place)
{
	FAutomationExecutionEntry Entry{FAutomationEvent(Type, Message)};
	Entry.Filename = UTF8_TO_TCHAR(Place.file_name());
	Entry.LineNumber = static_cast<int32>(Place.line());
	ExecutionInfo.AddEvent(Entry);
}

void FAutomationTestBase::AddError(const FString& InError, int32, FSourceLocation Place)
{
	Add(EAutomationEventType::Error, InError, Place);
}

void FAutomationTestBase::AddInfo(const FString& InLogItem, int32, bool)
{
	ExecutionInfo.AddEvent(FAutomationExecutionEntry(FAutomationEvent(EAutomationEventType::Info, InLogItem)));
}

void FAutomationTestBase::AddExpectedErrorPlain(FString ExpectedString, EAutomationExpectedErrorFlags::MatchType CompareType, int32 Occurrences)
{
	ExpectedMessages.Add({MoveTemp(ExpectedString), CompareType, Occurrences});
}

bool FAutomationTestBase::IsExpected(const FString& Line)
{
	for (FExpectedMessage& Expected : ExpectedMessages)
	{
		if (Expected.CompareType == EAutomationExpectedMessageFlags::Contains ? Line.Contains(Expected.Text, ESearchCase::CaseSensitive) : Line.Equals(Expected.Text, ESearchCase::CaseSensitive))
		{
			++Expected.NumSeen;
			return true;
		}
	}
	return false;
}

void FAutomationTestBase::AddLogLine(ELogVerbosity::Type Verbosity, const FString& Line)
{
	EAutomationEventType Type = EAutomationEventType::Info;
	if (Verbosity <= ELogVerbosity::Warning)
	{
		const bool bWarning = Verbosity == ELogVerbosity::Warning;
		if (IsExpected(Line) || (bWarning ? SuppressLogWarnings() : SuppressLogErrors()))
		{
			return;
		}
		Type = bWarning && !ElevateLogWarningsToErrors() ? EAutomationEventType::Warning : EAutomationEventType::Error;
	}
	ExecutionInfo.AddEvent(FAutomationExecutionEntry(FAutomationEvent(Type, Line)));
}

bool FAutomationTestBase::Check(bool bHolds, const TCHAR* What, const TCHAR* Otherwise, const FSourceLocation& Place)
{
	if (!bHolds)
	{
		Add(EAutomationEventType::Error, FString::Printf(TEXT("%s: %s"), What, Otherwise), Place);
	}
	return bHolds;
}

bool FAutomationTestBase::CheckEqual(bool bEqual, const TCHAR* What, const FString& Actual, const FString& Expected, const FSourceLocation& Place)
{
	if (!bEqual)
	{
		Add(EAutomationEventType::Error, FString::Printf(TEXT("Expected '%s' to be %s, but it was %s."), What, *Expected, *Actual), Place);
	}
	return bEqual;
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, int32 Actual, int32 Expected, FSourceLocation Place)
{
	return CheckEqual(Actual == Expected, What, FString::FromInt(Actual), FString::FromInt(Expected), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, int64 Actual, int64 Expected, FSourceLocation Place)
{
	return CheckEqual(Actual == Expected, What, FString::Printf(TEXT("%lld"), Actual), FString::Printf(TEXT("%lld"), Expected), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, float Actual, float Expected, float Tolerance, FSourceLocation Place)
{
	return TestEqual(What, static_cast<double>(Actual), static_cast<double>(Expected), static_cast<double>(Tolerance), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, double Actual, double Expected, double Tolerance, FSourceLocation Place)
{
	return CheckEqual(FMath::IsNearlyEqual(Actual, Expected, Tolerance), What, FString::Printf(TEXT("%f"), Actual), FString::Printf(TEXT("%f"), Expected), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, FVector Actual, FVector Expected, float Tolerance, FSourceLocation Place)
{
	return CheckEqual(Actual.Equals(Expected, Tolerance), What, Actual.ToString(), Expected.ToString(), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, FColor Actual, FColor Expected, FSourceLocation Place)
{
	return CheckEqual(Actual == Expected, What, Actual.ToString(), Expected.ToString(), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, FLinearColor Actual, FLinearColor Expected, FSourceLocation Place)
{
	return CheckEqual(Actual.Equals(Expected), What, Actual.ToString(), Expected.ToString(), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected, FSourceLocation Place)
{
	return TestEqual(What, FStringView(Actual), FStringView(Expected), Place);
}

bool FAutomationTestBase::TestEqual(const TCHAR* What, FStringView Actual, FStringView Expected, FSourceLocation Place)
{
	return CheckEqual(Actual.Equals(Expected, ESearchCase::IgnoreCase), What, FString::Printf(TEXT("\"%s\""), *FString(Actual)), FString::Printf(TEXT("\"%s\""), *FString(Expected)), Place);
}

bool FAutomationTestBase::TestEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected, FSourceLocation Place)
{
	return TestEqualSensitive(What, FStringView(Actual), FStringView(Expected), Place);
}

bool FAutomationTestBase::TestEqualSensitive(const TCHAR* What, FStringView Actual, FStringView Expected, FSourceLocation Place)
{
	return CheckEqual(Actual.Equals(Expected, ESearchCase::CaseSensitive), What, FString::Printf(TEXT("\"%s\""), *FString(Actual)), FString::Printf(TEXT("\"%s\""), *FString(Expected)), Place);
}

bool FAutomationTestBase::TestTrue(const TCHAR* What, bool bValue, FSourceLocation Place)
{
	return CheckEqual(bValue, What, TEXT("false"), TEXT("true"), Place);
}

bool FAutomationTestBase::TestFalse(const TCHAR* What, bool bValue, FSourceLocation Place)
{
	return CheckEqual(!bValue, What, TEXT("true"), TEXT("false"), Place);
}

bool FAutomationTestBase::TestNull(const TCHAR* What, const void* Pointer, FSourceLocation Place)
{
	return Check(Pointer == nullptr, What, TEXT("The pointer is not null."), Place);
}
