// Copyright Velmorant. All Rights Reserved.

#include "Search/FontIconFilter.h"

#include "TestPrinters.h"

#include <gmock/gmock.h>

TEST(FontIconFilter, FindsPartsOfNamesAndWholeSearchWordsInAStyle)
{
	const struct
	{
		FName Name;
		TArray<FName> Styles;
		TSet<FString> SearchTags;
	} Icons[] = {
		{"anchor", {"Bold", "Thin"}, {TEXT("black ship"), TEXT("buoy")}},
		{"sail-boat", {"Thin"}, {TEXT("regatta")}},
		{"boat-house", {"Bold"}, {TEXT("boat")}},
		{"Buoy", {"Bold", "Thin"}, {}},
	};
	const struct
	{
		const char* Behaviour;
		const TCHAR* Text;
		const char* Style;
		TArray<int32> Found;
	} Cases[] = {
		{"all of a style for no text", TEXT(""), "Thin", {0, 1, 3}},
		{"none of a style that no icon has", TEXT(""), "Round", {}},
		{"one letter", TEXT("B"), "Thin", {1, 3}},
		{"the beginning of the first", TEXT("AN"), "Thin", {0}},
		{"a part of a name", TEXT("OAT"), "Thin", {1}},
		{"a search word", TEXT("Regatta"), "Thin", {1}},
		{"a part of a search word", TEXT("regatt"), "Thin", {}},
		{"a search word of several words", TEXT("black ship"), "thin", {0}},
		{"one of its words", TEXT("black"), "Thin", {}},
		{"not drawn in the style", TEXT("boat-house"), "Thin", {}},
		{"blanks count", TEXT(" boat"), "Thin", {}},
		{"behind, too", TEXT("oat "), "Thin", {}},
		{"by search word, and behind it by name", TEXT("buoy"), "Thin", {0, 3}},
		{"once, though it is found by both", TEXT("boat"), "Bold", {2}},
		{"the end of one name and the beginning of the next", TEXT("tboat"), "Bold", {}},
	};
	FFontIconFilter Filter;
	EXPECT_TRUE(Filter.Find(TEXT(""), "Thin").IsEmpty()) << "before there are icons";
	for (int32 Round = 0; Round < 2; ++Round) // the second time in place of the first
	{
		Filter.SetIcons(4, [&Icons](int32 Icon) { return FFontIconFilter::FIcon{Icons[Icon].Name, Icons[Icon].Styles, Icons[Icon].SearchTags}; });
	}
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Filter.Find(Case.Text, Case.Style), Case.Found) << Case.Behaviour;
	}
}
