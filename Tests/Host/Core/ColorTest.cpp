// Copyright Velmorant. All Rights Reserved.

#include "Math/Color.h"

#include "TestPrinters.h"

namespace ColorTest
{
	// Built before main from another file's constants.
	const FLinearColor StaticPurple(FColor::Purple);
}

using namespace ColorTest;

TEST(Color, ConvertsFromSrgbChannelByChannelButNotOpacity)
{
	const FLinearColor Purple(FColor::Purple); // 169, 7, 228
	EXPECT_NEAR(Purple.R, 0.396755, 1e-5);
	EXPECT_NEAR(Purple.G, 7 / 255.0 / 12.92, 1e-7) << "the dark end is a straight line";
	EXPECT_NEAR(Purple.B, 0.775822, 1e-5);
	EXPECT_EQ(Purple.A, 1.f);
	EXPECT_NEAR(FLinearColor(FColor(0, 0, 0, 128)).A, 128 / 255.0, 1e-6);
	EXPECT_EQ(StaticPurple, Purple);
}

TEST(Color, AllSrgbValuesSurviveTheWayThereAndBack)
{
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const FColor Color(static_cast<uint8>(Value), static_cast<uint8>(255 - Value), 128, static_cast<uint8>(Value));
		ASSERT_EQ(FLinearColor(Color).ToFColor(true), Color);
	}
}

TEST(Color, ReadsItsOwnTextForm)
{
	struct FCase
	{
		const char* Behaviour;
		const TCHAR* Text;
		bool bOk;
		FLinearColor Expected;
	};
	const FCase Cases[] = {
		{"its own form", TEXT("(R=1.000000,G=0.500000,B=0.250000,A=0.750000)"), true, FLinearColor(1.f, 0.5f, 0.25f, 0.75f)},
		{"opacity is optional", TEXT("(R=1.0,G=0.5,B=0.25)"), true, FLinearColor(1.f, 0.5f, 0.25f, 1.f)},
		{"blanks", TEXT("( R=1 , G= 0.5 , B=0.25 )"), true, FLinearColor(1.f, 0.5f, 0.25f, 1.f)},
		{"lower case", TEXT("r=1 g=0.5 b=0.25"), true, FLinearColor(1.f, 0.5f, 0.25f, 1.f)},
		{"a channel is missing", TEXT("(R=1.0,B=0.25)"), false, FLinearColor(1.f, 0.f, 0.f, 1.f)},
		{"no colour at all", TEXT("red"), false, FLinearColor(0.f, 0.f, 0.f, 1.f)},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		FLinearColor Color(9.f, 9.f, 9.f, 9.f);
		EXPECT_EQ(Color.InitFromString(Case.Text), Case.bOk);
		EXPECT_EQ(Color.R, Case.Expected.R);
		EXPECT_EQ(Color.A, Case.Expected.A);
		if (Case.bOk)
		{
			EXPECT_EQ(Color, Case.Expected);
		}
	}
	EXPECT_EQ(FLinearColor(1.f, 0.5f, 0.f).ToString(), TEXT("(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"));
}

TEST(Color, HexFormKeepsItsDigits)
{
	EXPECT_EQ(FColor(18, 171, 255, 0).ToHex(), TEXT("12ABFF00"));
}
