// Copyright Velmorant. All Rights Reserved.

#include "ServiceData/ProjectRows.h"

#include "ToolkitTest.h"
#include "VelmorantConfiguratorTypes.h"

#include <gmock/gmock.h>
#include <random>

using testing::ElementsAre;

namespace ProjectRowsTest
{
	using ProjectRows::FRow;

	/** Each as "UnitID Keycode Name". */
	std::vector<std::string> Read(const TArray<FRow>& Rows)
	{
		std::vector<std::string> Texts;
		for (const FRow& Row : Rows)
		{
			Texts.push_back(ToUtf8(FString::Printf(TEXT("%d %s %s"), Row.UnitID, *Row.Keycode, *Row.DisplayName)));
		}
		return Texts;
	}

	/** What a list shows of the rows. */
	TArray<TObjectPtr<UListDisplayerItemBase>> MakeItems(const TArray<FRow>& Rows)
	{
		TArray<TObjectPtr<UListDisplayerItemBase>> Items;
		for (const FRow& Row : Rows)
		{
			Items.Add(UListDisplayerItemBase::CreateListDisplayerItemBase(Row.UnitID, Row.Keycode, Row.DisplayName, ELDIT_Unit));
		}
		return Items;
	}
}

using namespace ProjectRowsTest;

TEST(ProjectRows, AreInTheOrderOfTheServiceButUnitsByNumber)
{
	EXPECT_THAT(Read(ProjectRows::OfUnitGroups({{TEXT("HT-B"), TEXT("Brisa")}, {TEXT("HT-A"), TEXT("Alba")}})), ElementsAre("-1 HT-B Brisa", "-1 HT-A Alba"));
	EXPECT_THAT(Read(ProjectRows::OfUnits({{TEXT("A-1"), TEXT("First"), 10}, {TEXT("A-2"), TEXT("Second"), 20}, {TEXT("A-3"), TEXT("Cellar"), -7}})), ElementsAre("-7 A-3 Cellar", "10 A-1 First", "20 A-2 Second"));

	const TArray<FVelmorantConfiguratorUnitGroup> Flat = {{TEXT("HT-B"), TEXT("Brisa")}};
	const TArray<FVelmorantConfiguratorUnitGroup> Loft = {{TEXT("HT-A"), TEXT("Alba")}, Flat[0]};
	EXPECT_THAT(Read(ProjectRows::OfConfigurators({Loft, {}, Flat})), ElementsAre("-1 HT-A Alba", "-1 HT-B Brisa", "-1 HT-B Brisa")) << "a unit group as often as configurators apply to it";
	EXPECT_TRUE(ProjectRows::OfProject(nullptr, ELDIT_UnitGroup).IsEmpty());
}

TEST(ProjectRows, AreFoundByKeyCodeAndNameInOne)
{
	const TArray<FRow> Rows = {{10, TEXT("A-1"), TEXT("First")}, {20, TEXT("A-2"), TEXT("Second")}, {30, TEXT(""), TEXT("")}};
	const struct
	{
		const TCHAR* Text;
		TArray<int32> Found;
	} Cases[] = {
		{TEXT("a-2"), {1}},
		{TEXT("a-"), {0, 1}},
		{TEXT("FIR"), {0}},
		{TEXT("1f"), {0}}, // across the seam
		{TEXT("1 F"), {}},
		{TEXT("FIR "), {}}, // blanks count
		{TEXT("ta"), {}}, // the end of one row and the beginning of the next
		{TEXT("s"), {0, 1}},
		{TEXT("10"), {}}, // numbers are not searched
	};
	const FVelmorantTextSearch Search = ProjectRows::MakeSearch(MakeItems(Rows));
	for (const auto& Case : Cases)
	{
		EXPECT_EQ(Search.Find(Case.Text), Case.Found) << ToUtf8(FString(Case.Text));
	}
	EXPECT_TRUE(ProjectRows::MakeSearch({}).Find(TEXT("a")).IsEmpty());
}

TEST(ProjectRows, AreFoundAsByComparingRowByRow)
{
	const char* const Letters[] = {"a", "A", "b", "-", "1", "\u00E9", "\u00C9", "\u0130", "\u0131", "\u212A", "k", "\u03C3", "\u03C2", "\u03A3", "\U0001F600"};
	std::mt19937 Random(20250712);
	const auto MakeText = [&Random, &Letters](uint32 MaxLength) {
		std::string Text;
		for (uint32 Length = Random() % (MaxLength + 1); Length > 0; --Length)
		{
			Text += Letters[Random() % std::size(Letters)];
		}
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	};
	TArray<FRow> Rows;
	while (Rows.Num() < 300)
	{
		Rows.Add({0, MakeText(4), MakeText(12)});
	}
	const FVelmorantTextSearch Search = ProjectRows::MakeSearch(MakeItems(Rows));

	int32 NumFound = 0;
	for (int32 Round = 0; Round < 300; ++Round)
	{
		const FString Text = Round % 2 ? TEXT("b") + MakeText(3) : MakeText(3) + TEXT("a");
		TArray<int32> Expected;
		for (int32 Row = 0; Row < Rows.Num(); ++Row)
		{
			if ((Rows[Row].Keycode + Rows[Row].DisplayName).Contains(Text))
			{
				Expected.Add(Row);
			}
		}
		ASSERT_EQ(Search.Find(Text), Expected) << ToUtf8(Text);
		NumFound += Expected.Num();
	}
	EXPECT_GT(NumFound, 1000);
	EXPECT_LT(NumFound, 300 * 300 / 2);
}
