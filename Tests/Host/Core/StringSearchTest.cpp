// Copyright Velmorant. All Rights Reserved.

#include "Containers/UnrealString.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace StringSearchTest
{
	bool AreAlike(TCHAR A, TCHAR B, ESearchCase::Type SearchCase)
	{
		return SearchCase == ESearchCase::CaseSensitive ? A == B : FChar::ToLower(A) == FChar::ToLower(B);
	}

	/** The first place at or after Start, by comparing at every place. */
	int32 FindPlainly(const FString& Text, const FString& Sub, ESearchCase::Type SearchCase, int32 Start)
	{
		for (int32 Index = Start; Index + Sub.Len() <= Text.Len(); ++Index)
		{
			int32 Length = 0;
			while (Length < Sub.Len() && AreAlike(Text[Index + Length], Sub[Length], SearchCase))
			{
				++Length;
			}
			if (Length == Sub.Len())
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	/** Every place, also those that overlap. */
	template<typename FindType>
	std::vector<int32> AllPlaces(FindType Find)
	{
		std::vector<int32> Places;
		for (int32 Place = Find(0); Place != INDEX_NONE; Place = Find(Place + 1))
		{
			Places.push_back(Place);
		}
		return Places;
	}
}

using namespace StringSearchTest;

class StringSearch : public testing::Test
{
protected:
	int32 Pick(int32 Count) { return static_cast<int32>(Random() % static_cast<uint32>(Count)); }

	FString MakeText(int32 Len, const FString& Letters)
	{
		FString Text;
		while (Text.Len() < Len)
		{
			Text += Letters[Pick(Letters.Len())];
		}
		return Text;
	}

	std::mt19937 Random{20250711};
};

TEST_F(StringSearch, FindsEveryPlaceInTextsOfAllLengths)
{
	// Few letters, so that much is found and more nearly is. The last set has letters of more than two alike forms, and halves of pairs.
	const FString Alphabets[] = {TEXT("ab"), TEXT("aAbB-"), TEXT("abcdefgh HT-0123456789"), TEXT("k\u212AiI\u0130\u0131sS\u017F\u03C3\u03C2\u03A3\u00F1\u00D1\U0001F600")};
	int32 NumFound = 0;
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		const FString& Letters = Alphabets[Round % 4];
		const FString Text = MakeText(Pick(Round % 3 == 0 ? 2000 : 60), Letters);
		const FString Sub = Pick(2) && !Text.IsEmpty() ? Text.Mid(Pick(Text.Len()), 1 + Pick(20)) : MakeText(1 + Pick(6), Letters);
		for (const ESearchCase::Type SearchCase : {ESearchCase::CaseSensitive, ESearchCase::IgnoreCase})
		{
			const std::vector<int32> Expected = AllPlaces([&](int32 Start) { return FindPlainly(Text, Sub, SearchCase, Start); });
			ASSERT_EQ(AllPlaces([&](int32 Start) { return Text.Find(Sub, SearchCase, ESearchDir::FromStart, Start); }), Expected)
				<< '"' << TCHAR_TO_UTF8(*Sub) << "\" in \"" << TCHAR_TO_UTF8(*Text) << '"';
			NumFound += static_cast<int32>(Expected.size());
		}
	}
	EXPECT_GT(NumFound, 10000);
}

TEST_F(StringSearch, FindsTextsOfAnyLengthFarAway)
{
	const FString Before = MakeText(5000, TEXT("abcdefgh"));
	for (const int32 Len : {1, 2, 3, 4, 5, 16, 254, 255, 256, 257, 1000})
	{
		const FString Sub = TEXT("Z") + MakeText(Len - 1, TEXT("abcdefgh"));
		EXPECT_EQ((Before + Sub).Find(Sub, ESearchCase::CaseSensitive), 5000) << Len;
		EXPECT_EQ((Before + Sub + Before).Find(Sub.ToLower(), ESearchCase::IgnoreCase, ESearchDir::FromStart, 4000), 5000) << Len;
		EXPECT_EQ((Before + Sub.LeftChop(1)).Find(Sub, ESearchCase::CaseSensitive), INDEX_NONE) << Len;
	}
}

TEST_F(StringSearch, SkipsNoPlaceBeforeALongText)
{
	for (const int32 Len : {4, 255, 256, 257, 700})
	{
		// Every pair of neighbours in the first half occurs once only, so that it must be known how far it is from the end.
		FString Sub;
		for (int32 Index = 0; Index < Len / 2; ++Index)
		{
			Sub += static_cast<TCHAR>(0x4e00 + Index);
		}
		Sub += FString::ChrN(Len - Len / 2, 'a');
		for (int32 Place = 3000; Place <= 3000 + Len; ++Place)
		{
			ASSERT_EQ((FString::ChrN(Place, '-') + Sub).Find(Sub, ESearchCase::CaseSensitive), Place) << Len;
		}
	}
}

TEST_F(StringSearch, FoldedBeforehandFindsWhatIgnoringCaseFinds)
{
	const FString Letters = TEXT("aAzZ-\u00E9\u00C9\u0130\u0131\u212A\u017F\u03C3\u03C2\u03A3\u0416\u0436\u1E9E\u00DF\uFB01\U0001F600\u4E2D");
	int32 NumFound = 0;
	for (int32 Round = 0; Round < 4000; ++Round)
	{
		const FString Text = MakeText(Pick(30), Letters);
		const FString Sub = MakeText(1 + Pick(3), Letters);
		const bool bFound = Text.Contains(Sub);
		ASSERT_EQ(Text.ToLower().Contains(Sub.ToLower(), ESearchCase::CaseSensitive), bFound) << '"' << TCHAR_TO_UTF8(*Sub) << "\" in \"" << TCHAR_TO_UTF8(*Text) << '"';
		NumFound += bFound ? 1 : 0;
	}
	EXPECT_GT(NumFound, 500);
}
