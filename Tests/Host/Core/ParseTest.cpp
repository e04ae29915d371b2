// Copyright Velmorant. All Rights Reserved.

#include "Misc/Parse.h"

#include "Misc/CommandLine.h"
#include "TestPrinters.h"

TEST(Parse, ReadsValuesBehindTheirKeys)
{
	struct FCase
	{
		const char* Behaviour;
		const TCHAR* Stream;
		const TCHAR* Match;
		bool bFound;
		FString Expected;
	};
	const FCase Cases[] = {
		{"up to a blank", TEXT("-Service=data.json -x"), TEXT("service="), true, TEXT("data.json")},
		{"up to a separator", TEXT("(Name=Unit,Other=1)"), TEXT("Name="), true, TEXT("Unit")},
		{"a quoted one keeps blanks and commas", TEXT("Name=\"Unit, big\" x"), TEXT("Name="), true, TEXT("Unit, big")},
		{"not inside another key", TEXT("(FirstName=a,Name=b)"), TEXT("Name="), true, TEXT("b")},
		{"absent", TEXT("a=1"), TEXT("b="), false, TEXT("old")},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		FString Value(TEXT("old"));
		EXPECT_EQ(FParse::Value(Case.Stream, Case.Match, Value), Case.bFound);
		EXPECT_EQ(Value, Case.Expected);
	}
	float Delay = 0.f;
	EXPECT_TRUE(FParse::Value(TEXT("-Delay=0.5"), TEXT("Delay="), Delay));
	EXPECT_EQ(Delay, 0.5f);
}

TEST(Parse, SwitchesAreWholeWordsBehindADash)
{
	EXPECT_TRUE(FParse::Param(TEXT("a -Unattended b"), TEXT("unattended")));
	EXPECT_TRUE(FParse::Param(TEXT("/log"), TEXT("log")));
	EXPECT_FALSE(FParse::Param(TEXT("-logs"), TEXT("log")));
	EXPECT_FALSE(FParse::Param(TEXT("log"), TEXT("log")));
	EXPECT_FALSE(FParse::Param(TEXT("x-log"), TEXT("log")));
	EXPECT_TRUE(FParse::Param(TEXT("-logs -log"), TEXT("log")));
}
