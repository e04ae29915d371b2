// Copyright Velmorant. All Rights Reserved.

#include "DetailsTest.h"
#include "Editor.h"
#include "Engine/Engine.h"
#include "FontIconData.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "SSearchableComboBox.h"
#include "ScopedTransaction.h"
#include "Styling/AppStyle.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantProUISettings.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/** An icon in the details panel. */
class FontIconCustomization : public FDetailsTest
{
protected:
	void Search(const TCHAR* Text) { Type(TEXT("Icon List/Search"), Text); }
	void PickTile(const TCHAR* Icon) { Choose(TEXT("Icon List"), Icon); }

	static void ExpectIconFont(const STextBlock& Glyph)
	{
		EXPECT_EQ(Glyph.GetFont().Size, 16.0f);
		EXPECT_EQ(ToUtf8(Glyph.GetFont().TypefaceFontName), "Thin");
		ASSERT_NE(Glyph.GetFont().FontObject, nullptr);
		EXPECT_EQ(ToUtf8(Glyph.GetFont().FontObject->GetName()), "Face");
	}
};

TEST_F(FontIconCustomization, OffersWhatTheFontHas)
{
	const AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("Buoy"));
	EXPECT_EQ(Read(TEXT("Icon")), "b");
	EXPECT_THAT(Options(TEXT("Font Icon Name")), ElementsAre("Ship", "House", "Empty"));
	EXPECT_THAT(Options(TEXT("Icon Style")), ElementsAre("Bold", "Thin"));
	EXPECT_THAT(Options(TEXT("Icon Name")), ElementsAre("anchor", "sail-boat", "boat-house", "Buoy"));
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "[Buoy]"));
	EXPECT_FALSE(Spot->GetPackage()->IsDirty()) << "opening the panel must not write the property";
}

TEST_F(FontIconCustomization, ShowsAllRowsInOrder)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("Buoy"));
	std::vector<std::string> Titles = ToUtf8(View->GetRowTitles());
	ASSERT_GE(Titles.size(), 6u);
	Titles.resize(6);
	EXPECT_THAT(Titles, ElementsAre("Icon", "Font Icon Name (Icon.FontIconName)", "Icon Style (Icon.IconStyle)", "Icon Name (Icon.IconName)", "Icon List", "Icon Color (Icon.IconColor)"));

	View->SetFilter(TEXT("Filter"));
	EXPECT_THAT(Snapshot(), HasSubstr("row [Icon List]")) << "found by its filter text";
	EXPECT_THAT(Snapshot(), Not(HasSubstr("Icon Style")));
}

TEST_F(FontIconCustomization, DrawsTheGridAndItsGlyphsInTheirSizes)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("Buoy"));
	EXPECT_THAT(Snapshot(), HasSubstr("tiles (3 items, 35 x 35 each)"));
	EXPECT_THAT(BoxSizes(TEXT("Icon List")), ElementsAre("150 high"));
	const std::vector<STextBlock*> Glyphs = All<STextBlock>(TEXT("Icon List"));
	ASSERT_EQ(Glyphs.size(), 3u);
	const char* const Characters[] = {"⚓", "⛵", "b"};
	for (int32 Index = 0; Index < 3; ++Index)
	{
		EXPECT_EQ(ToUtf8(Glyphs[Index]->GetText()), Characters[Index]);
		ExpectIconFont(*Glyphs[Index]);
	}

	const auto FindText = [this](const char* Text) {
		const std::vector<STextBlock*> Texts = All<STextBlock>(nullptr);
		const auto Found = std::find_if(Texts.begin(), Texts.end(), [Text](const STextBlock* Block) { return ToUtf8(Block->GetText()) == Text; });
		return Found != Texts.end() ? *Found : nullptr;
	};
	const STextBlock* const Header = FindText("b"); // stands above the grid
	ASSERT_NE(Header, nullptr);
	ExpectIconFont(*Header);

	Click(TEXT("Icon Name"));
	const STextBlock* const Name = FindText("boat-house"); // in the list of names alone
	ASSERT_NE(Name, nullptr);
	EXPECT_TRUE(Name->GetFont() == FAppStyle::GetFontStyle("PropertyWindow.NormalFont"));
}

TEST_F(FontIconCustomization, ItsListsFollowFontsThatComeWhileThePanelIsOpen)
{
	const AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	FFontIconSource Attic = GetDefault<UVelmorantProUISettings>()->FontIcons[1];
	Attic.FontID = "Attic";
	GetMutableDefault<UVelmorantProUISettings>()->FontIcons.Add(Attic);
	EXPECT_THAT(Options(TEXT("Font Icon Name")), ElementsAre("Ship", "House", "Empty", "Attic"));
	Choose(TEXT("Font Icon Name"), TEXT("Attic"));
	EXPECT_EQ(ToUtf8(Spot->Icon.FontIconName), "Attic");

	UDataTable* Table = Attic.IconDataTable.Get();
	ASSERT_NE(Table, nullptr);
	Table->EmptyTable(); // as when icons are imported again
	EXPECT_EQ(Read(TEXT("Icon")), "None");
	FFontIconRow Roof;
	Roof.Character = TEXT("r");
	Roof.IconStyles = {"Thin"};
	Table->AddRow("roof", Roof);
	EXPECT_THAT(Options(TEXT("Icon Name")), ElementsAre("roof"));
	Search(TEXT("oo"));
	EXPECT_THAT(Tiles(), ElementsAre("door")) << "the grid shows what it took until a font or style is chosen";
	Choose(TEXT("Font Icon Name"), TEXT("Ship"));
	Choose(TEXT("Font Icon Name"), TEXT("Attic"));
	EXPECT_THAT(Tiles(), ElementsAre("roof"));
	PickTile(TEXT("roof"));
	EXPECT_EQ(Read(TEXT("Icon")), "r");
}

TEST_F(FontIconCustomization, NarrowsTheGridWithEveryLetter)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("submarine"));
	Search(TEXT("B"));
	EXPECT_THAT(Tiles(), ElementsAre("sail-boat", "Buoy")) << "boat-house is not drawn in this style";
	Search(TEXT("black ship"));
	EXPECT_THAT(Tiles(), ElementsAre("anchor")) << "by a search word";
	Search(TEXT("black"));
	EXPECT_THAT(Tiles(), IsEmpty());
	Search(TEXT(""));
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "Buoy"));
}

TEST_F(FontIconCustomization, KeepsTheSearchTextForAnotherStyleOrFont)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	Search(TEXT("boat"));
	EXPECT_THAT(Tiles(), ElementsAre("sail-boat"));

	Choose(TEXT("Icon Style"), TEXT("Bold"));
	EXPECT_THAT(Tiles(), ElementsAre("boat-house")) << "once, though it is found by name and search word";
	EXPECT_EQ(Read(TEXT("Icon List/Search")), "boat");

	Choose(TEXT("Font Icon Name"), TEXT("House"));
	EXPECT_THAT(Tiles(), IsEmpty());
	EXPECT_THAT(Snapshot(), HasSubstr("[Icon Name] \"anchor\" (combo, 1 option")) << "before anybody opens the list";
	EXPECT_THAT(Options(TEXT("Icon Style")), ElementsAre("Round", "Thin"));
	EXPECT_THAT(Options(TEXT("Icon Name")), ElementsAre("door"));

	Search(TEXT(""));
	EXPECT_THAT(Tiles(), IsEmpty()) << "the style is still Bold";
	Choose(TEXT("Icon Style"), TEXT("Round"));
	EXPECT_THAT(Tiles(), ElementsAre("door"));
}

TEST_F(FontIconCustomization, WritesWhatIsPicked)
{
	const AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("Buoy"));
	PickTile(TEXT("anchor"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "anchor");
	EXPECT_EQ(Read(TEXT("Icon")), "⚓");
	EXPECT_EQ(Read(TEXT("Icon Name")), "anchor");
	EXPECT_THAT(Tiles(), ElementsAre("[anchor]", "sail-boat", "Buoy"));
	EXPECT_TRUE(Spot->GetPackage()->IsDirty());

	// The list may not take the icon for chosen that it chose before the grid did.
	Choose(TEXT("Icon Name"), TEXT("sail-boat"));
	PickTile(TEXT("Buoy"));
	Choose(TEXT("Icon Name"), TEXT("sail-boat"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "sail-boat");
	PickTile(TEXT("Buoy"));
	Click(TEXT("Icon Name"));
	EXPECT_EQ(ToUtf8(*All<SSearchableComboBox>(TEXT("Icon Name"))[0]->GetSelectedItem()), "Buoy") << "the open list starts where the property is";
	Choose(TEXT("Icon Name"), TEXT("sail-boat"));

	// Nor may the grid.
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "[sail-boat]", "Buoy"));
	PickTile(TEXT("Buoy"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "Buoy");
	Choose(TEXT("Icon Name"), TEXT("boat-house"));
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "Buoy")) << "there is no tile of it in this style";
	PickTile(TEXT("Buoy"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "Buoy");
	Choose(TEXT("Icon Name"), TEXT("sail-boat"));

	Choose(TEXT("Icon Style"), TEXT("Bold"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconStyle), "Bold");
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "sail-boat") << "narrowing the grid is no choice";
}

TEST_F(FontIconCustomization, ShowsNoneForAnIconThatNoRowHolds)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("submarine"));
	EXPECT_EQ(Read(TEXT("Icon")), "None");
	EXPECT_EQ(Read(TEXT("Icon Name")), "submarine");
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "Buoy"));
	Choose(TEXT("Icon Name"), TEXT("anchor"));
	EXPECT_THAT(Tiles(), ElementsAre("[anchor]", "sail-boat", "Buoy"));
}

TEST_F(FontIconCustomization, IsEmptyWithoutAFont)
{
	const AVlmInteractiveSpot* Spot = OpenIcon(TEXT("None"), TEXT("None"), TEXT("None"));
	EXPECT_EQ(Read(TEXT("Icon")), "None");
	EXPECT_THAT(Options(TEXT("Icon Style")), IsEmpty());
	EXPECT_THAT(Options(TEXT("Icon Name")), IsEmpty());
	EXPECT_THAT(Tiles(), IsEmpty());

	Choose(TEXT("Font Icon Name"), TEXT("Ship"));
	Choose(TEXT("Icon Style"), TEXT("Bold"));
	PickTile(TEXT("boat-house"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "boat-house");
}

TEST_F(FontIconCustomization, KeepsTheIconsOfTheFontBeforeWhenAFontHasNoTable)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	Choose(TEXT("Font Icon Name"), TEXT("Empty"));
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "Buoy"));
	EXPECT_THAT(Options(TEXT("Icon Name")), IsEmpty());
	EXPECT_EQ(Read(TEXT("Icon")), "⚓");
}

TEST_F(FontIconCustomization, EditsSeveralIconsAtOnce)
{
	AVlmInteractiveSpot* First = SpawnSpot();
	AVlmInteractiveSpot* Second = SpawnSpot();
	First->Icon = FFontIconHandler("Ship", "Thin", "anchor");
	Second->Icon = FFontIconHandler("Ship", "Thin", "Buoy");
	Open({First, Second});
	EXPECT_EQ(Read(TEXT("Icon")), "None");
	EXPECT_EQ(Read(TEXT("Font Icon Name")), "Ship");
	EXPECT_EQ(Read(TEXT("Icon Name")), "Multiple Values");
	EXPECT_THAT(Tiles(), ElementsAre("anchor", "sail-boat", "Buoy"));

	PickTile(TEXT("sail-boat"));
	EXPECT_EQ(ToUtf8(First->Icon.IconName), "sail-boat");
	EXPECT_EQ(ToUtf8(Second->Icon.IconName), "sail-boat");
	EXPECT_EQ(Read(TEXT("Icon")), "⛵");
}

TEST_F(FontIconCustomization, ScrollsToTheIconOfTheProperty)
{
	UDataTable* Table = GetDefault<UVelmorantProUISettings>()->FontIcons[0].IconDataTable.LoadSynchronous();
	for (int32 Index = 0; Index < 100; ++Index)
	{
		FFontIconRow Row;
		Row.IconStyles = {"Bold"};
		Table->AddRow(FName(FString::Printf(TEXT("flag-%d"), Index)), Row);
	}
	OpenIcon(TEXT("Ship"), TEXT("Bold"), TEXT("flag-90"));
	EXPECT_THAT(Tiles(), testing::Contains("[flag-90]"));
	EXPECT_THAT(Tiles(), Not(testing::Contains("anchor"))) << "out of view";
}

TEST_F(FontIconCustomization, KeepsTheTableOfItsIcons)
{
	OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	UDataTable* Table = GetDefault<UVelmorantProUISettings>()->FontIcons[0].IconDataTable.Get();
	ASSERT_NE(Table, nullptr);
	const TWeakObjectPtr<UDataTable> Weak(Table);
	Table->ClearFlags(RF_Public | RF_Standalone);
	GetMutableDefault<UVelmorantProUISettings>()->FontIcons.Empty();
	HostObjects::CollectGarbage();
	EXPECT_TRUE(Weak.IsValid());
	EXPECT_EQ(Read(TEXT("Icon")), "⚓");
	View.Reset();
	HostObjects::CollectGarbage();
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FontIconCustomization, FollowsUndoAndRedo)
{
	const AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	Choose(TEXT("Icon Style"), TEXT("Bold"));
	PickTile(TEXT("Buoy"));
	Choose(TEXT("Font Icon Name"), TEXT("House"));
	const auto Expect = [this](const char* Font, const char* Icon, const std::vector<std::string>& Icons) {
		Wait(0.0);
		EXPECT_EQ(Read(TEXT("Font Icon Name")), Font);
		EXPECT_EQ(Read(TEXT("Icon Name")), Icon);
		EXPECT_EQ(Tiles(), Icons);
	};
	GEditor->UndoTransaction();
	Expect("Ship", "Buoy", {"anchor", "boat-house", "[Buoy]"});
	GEditor->UndoTransaction();
	Expect("Ship", "anchor", {"[anchor]", "boat-house", "Buoy"});
	GEditor->UndoTransaction();
	Expect("Ship", "anchor", {"[anchor]", "sail-boat", "Buoy"});
	GEditor->RedoTransaction();
	GEditor->RedoTransaction();
	Expect("Ship", "Buoy", {"anchor", "boat-house", "[Buoy]"});
	PickTile(TEXT("anchor"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconName), "anchor") << "a click on the tile that undo left selected before";
}

TEST_F(FontIconCustomization, IsSilentWhenUndoTakesTheObjectAway)
{
	AVlmInteractiveSpot* Spot = nullptr;
	{
		const FScopedTransaction Transaction(FText::FromString(TEXT("Spawn")));
		Spot = SpawnSpot();
	}
	Spot->Icon = FFontIconHandler("Ship", "Thin", "anchor");
	Open({Spot});
	GEditor->UndoTransaction();
	Wait(0.0);
	EXPECT_TRUE(View->GetObjects().IsEmpty());
	EXPECT_THAT(WholeLog(), Not(HasSubstr("FPropertyAccess::Fail")));
}

TEST_F(FontIconCustomization, RaisesItsChecksOnceTheObjectIsGone)
{
	bEnsuresMayFail = true;
	AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	const TSharedRef<SWidget> Panel = View->GetWidget();
	Spot->Destroy();
	HostObjects::CollectGarbage();
	HostSnapshot::Choose(Panel, TEXT("Font Icon Name"), TEXT("House"));
	EXPECT_THAT(WholeLog(), HasSubstr("Prop->GetValue(OutValue) != FPropertyAccess::Fail"));
	EXPECT_THAT(WholeLog(), HasSubstr("Prop->SetValue(Value) != FPropertyAccess::Fail"));
}

TEST_F(FontIconCustomization, IsEmptyWithoutTheUiSubsystem)
{
	TGuardValue<UEngine*> NoEngine(GEngine, nullptr);
	const TStrongObjectPtr<AVlmInteractiveSpot> Spot(NewObject<AVlmInteractiveSpot>());
	Spot->Icon = FFontIconHandler("Ship", "Thin", "anchor");
	Open({Spot.Get()});
	EXPECT_EQ(Read(TEXT("Icon")), "None");
	EXPECT_THAT(Options(TEXT("Font Icon Name")), IsEmpty());
	EXPECT_THAT(Tiles(), IsEmpty());
}
