// Copyright Velmorant. All Rights Reserved.

#include "UObject/NameTypes.h"

#include "HostAssertions.h"
#include "Internationalization/Text.h"
#include "TestPrinters.h"

#include <type_traits>

static_assert(sizeof(FName) == 12 && std::is_trivially_copyable_v<FName>);

namespace NameTest
{
	// Built before main, when the name table may not exist yet.
	const FName NameOfAStaticObject(TEXT("StaticNameTest_4"));
}

using namespace NameTest;

TEST(Name, ComparesIgnoringCaseAndPrintsAsWritten)
{
	const FName Lower(TEXT("türmchen ñ"));
	const FName Mixed(TEXT("Türmchen Ñ"));
	EXPECT_EQ(Lower, Mixed);
	EXPECT_EQ(GetTypeHash(Lower), GetTypeHash(Mixed));
	EXPECT_TRUE(Lower.ToString().Equals(TEXT("türmchen ñ")));
	EXPECT_TRUE(Mixed.ToString().Equals(TEXT("Türmchen Ñ")));
	EXPECT_TRUE(FName(TEXT("türmchen ñ")).ToString().Equals(TEXT("türmchen ñ"))) << "an old spelling is kept";
	EXPECT_FALSE(Lower.IsEqual(Mixed, ENameCase::CaseSensitive));
	EXPECT_TRUE(Lower == TEXT("TÜRMCHEN Ñ"));
	EXPECT_FALSE(Lower == TEXT("turmchen n"));
}

TEST(Name, FindDoesNotAdd)
{
	EXPECT_TRUE(FName(TEXT("NameThatOnlyThisTestAsksFor_3"), FNAME_Find).IsNone());
	EXPECT_TRUE(FName(TEXT("NameThatOnlyThisTestAsksFor_3"), FNAME_Find).IsNone());
	const FName Added(TEXT("NameThatOnlyThisTestAsksFor"));
	const FName Found(TEXT("NAMETHATONLYTHISTESTASKSFOR_3"), FNAME_Find);
	EXPECT_EQ(FName(Found, NAME_NO_NUMBER_INTERNAL), Added);
	EXPECT_EQ(Found.GetNumber(), 4);
}

TEST(Name, KeepsAllNamesWhileTheTableGrows)
{
	constexpr int32 Num = 20000;
	TArray<FName> Names;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Names.Add(FName(*FString::Printf(TEXT("Growing%dName"), Index)));
	}
	for (int32 Index = 0; Index < Num; ++Index)
	{
		const FString Text = FString::Printf(TEXT("Growing%dName"), Index);
		ASSERT_TRUE(Names[Index].ToString().Equals(Text));
		ASSERT_EQ(FName(*Text.ToLower(), FNAME_Find), Names[Index]);
	}
}

TEST(Name, ServesStaticObjects)
{
	EXPECT_EQ(NameOfAStaticObject, FName(TEXT("staticnametest_4")));
}

TEST(Name, RefusesMoreThan1023Characters)
{
	EXPECT_EQ(FName(*FString::ChrN(NAME_SIZE - 1, 'x')).ToString().Len(), 1023);
	EXPECT_THROW(FName(*FString::ChrN(NAME_SIZE, 'x')), FHostAssertionFailure);
}

TEST(Name, SaysWhichCharactersAnObjectNameMayNotHave)
{
	FText Reason;
	EXPECT_TRUE(FName(TEXT("Tower_A1")).IsValidXName(INVALID_OBJECTNAME_CHARACTERS, &Reason));
	EXPECT_FALSE(FName(TEXT("Tower A:1")).IsValidXName(INVALID_OBJECTNAME_CHARACTERS, &Reason));
	EXPECT_TRUE(Reason.ToString().EndsWith(TEXT(" :"))) << testing::PrintToString(Reason);
}
