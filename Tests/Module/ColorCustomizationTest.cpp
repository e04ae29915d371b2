// Copyright Velmorant. All Rights Reserved.

#include "DetailsTest.h"
#include "Engine/Engine.h"
#include "HostObjects.h"
#include "HostSnapshot.h"
#include "SSearchableComboBox.h"
#include "Styling/AppStyle.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmorantProUISettings.h"
#include "VelmorantUIStyleConfiguration.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace ColorCustomizationTest
{
	const char* const White = "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)";
	const char* const WhiteContrast = "(R=0.000000,G=0.000000,B=0.250000,A=1.000000)";
	const char* const Accent = "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)";
	const char* const HalfText = "(R=0.250000,G=0.250000,B=0.250000,A=0.500000)";
	const char* const OpaqueText = "(R=0.250000,G=0.250000,B=0.250000,A=1.000000)";
	const char* const Free = "(R=0.100000,G=0.200000,B=0.300000,A=0.400000)";
	const char* const Magenta = "(R=1.000000,G=0.000000,B=1.000000,A=1.000000)";
}

using namespace ColorCustomizationTest;

/** A colour in the details panel. */
class ColorCustomization : public FDetailsTest
{
protected:
	AVlmInteractiveSpot* OpenColor(const TCHAR* ColorID, EVelmorantColorMode Mode = EVelmorantColorMode::Simple)
	{
		AVlmInteractiveSpot* Spot = SpawnSpot();
		Spot->BackgroundColor = FVelmorantColorHandler(ColorID);
		Spot->BackgroundColor.ColorMode = Mode;
		Spot->BackgroundColor.ColorCustom = FLinearColor(0.1f, 0.2f, 0.3f, 0.4f);
		Open({Spot});
		return Spot;
	}

	std::string Preview() const { return ReadPart(TEXT("Background Color"), TEXT("swatch")); }
	std::string Chosen() const { return ReadPart(TEXT("Background Color/Color"), TEXT("combo")); }
	std::vector<std::string> Colors() const { return Options(TEXT("Background Color/Color")); }
	void ChooseColor(const TCHAR* ColorID) { Choose(TEXT("Background Color/Color"), ColorID); }
	void SwitchFamily() { Click(TEXT("Background Color/Switch between colors")); }
	void UseContrast(bool bOn) { Check(TEXT("Background Color/Use Contrast"), bOn); }
};

TEST_F(ColorCustomization, ShowsAllRowsInOrder)
{
	OpenColor(TEXT("White"));
	const std::vector<std::string> Titles = ToUtf8(View->GetRowTitles());
	const auto First = std::find_if(Titles.begin(), Titles.end(), [](const std::string& Title) { return Title.starts_with("Background Color"); });
	ASSERT_LE(7, Titles.end() - First) << testing::PrintToString(Titles);
	const char* const Expected[] = {"Background Color", "Color Mode", "Color", "Use Contrast", "Color Custom", "Override Opacity", "Opacity Override"};
	for (int32 Index = 0; Index < 7; ++Index)
	{
		EXPECT_THAT(First[Index], testing::StartsWith(Expected[Index]));
	}
}

TEST_F(ColorCustomization, ListsOneFamilyAtATime)
{
	const AVlmInteractiveSpot* Spot = OpenColor(TEXT("White"));
	EXPECT_THAT(Colors(), ElementsAre("White", "Both"));

	SwitchFamily();
	EXPECT_THAT(Snapshot(), HasSubstr("\"White\" (3 options")) << "before anybody opens the list";
	EXPECT_THAT(Colors(), ElementsAre("Text", "Accent", "Both"));
	EXPECT_EQ(ToUtf8(Spot->BackgroundColor.ColorID), "White");
	EXPECT_EQ(Chosen(), "White") << "not among the colours on show";
	EXPECT_FALSE(Spot->GetPackage()->IsDirty());

	ChooseColor(TEXT("Accent"));
	EXPECT_EQ(ToUtf8(Spot->BackgroundColor.ColorID), "Accent");
	EXPECT_EQ(Preview(), Accent);
	EXPECT_TRUE(Spot->GetPackage()->IsDirty());

	SwitchFamily();
	EXPECT_THAT(Colors(), ElementsAre("White", "Both"));
}

TEST_F(ColorCustomization, OpensWithTheFamilyOfItsColor)
{
	OpenColor(TEXT("Text"));
	EXPECT_THAT(Colors(), ElementsAre("Text", "Accent", "Both"));
	OpenColor(TEXT("Both"));
	EXPECT_THAT(Colors(), ElementsAre("White", "Both"));
	OpenColor(TEXT("None"), EVelmorantColorMode::Style);
	EXPECT_THAT(Colors(), ElementsAre("White", "Both"));
}

TEST_F(ColorCustomization, DrawsSwatchesInTheVariantInUse)
{
	AVlmInteractiveSpot* Spot = OpenColor(TEXT("White"));
	EXPECT_EQ(Preview(), White);
	UseContrast(true);
	EXPECT_TRUE(Spot->BackgroundColor.bUseContrast);
	EXPECT_EQ(Preview(), WhiteContrast);
	EXPECT_THAT(Snapshot(), HasSubstr(std::string("\"White\" (2 options, swatch ") + WhiteContrast)) << "the picker's swatch follows";
	UseContrast(false);
	EXPECT_EQ(Preview(), White);

	Spot->BackgroundColor.ColorID = "Text";
	EXPECT_EQ(Preview(), HalfText);
	EXPECT_THAT(Snapshot(), HasSubstr(std::string("\"Text\" (2 options, swatch ") + OpaqueText)) << "swatches of palette colours are opaque";
}

TEST_F(ColorCustomization, ShowsOptionsAsSwatchAndText)
{
	OpenColor(TEXT("White"));
	EXPECT_THAT(BoxSizes(TEXT("Background Color")), testing::IsSupersetOf({"25 wide", "25 high"}));

	const TCHAR* const Row = TEXT("Background Color/Color");
	All<SSearchableComboBox>(Row)[0]->SetIsOpen(true);
	Wait(0.0);
	EXPECT_THAT(BoxSizes(Row), ElementsAre("25 wide", "25 high", "25 wide", "25 high"));
	EXPECT_EQ(ReadPart(Row, TEXT("swatch")), White);
	UseContrast(true);
	EXPECT_EQ(ReadPart(Row, TEXT("swatch")), WhiteContrast);
	const std::vector<STextBlock*> Texts = All<STextBlock>(Row);
	ASSERT_EQ(Texts.size(), 2u);
	EXPECT_EQ(ToUtf8(Texts[1]->GetText().ToString()), "Both");
	EXPECT_TRUE(Texts[1]->GetFont() == FAppStyle::GetFontStyle("PropertyWindow.NormalFont"));
	auto& Slots = static_cast<TPanelChildren<FHorizontalBoxSlot>&>(*All<SHorizontalBox>(Row).back()->GetChildren());
	ASSERT_EQ(Slots.Num(), 2);
	EXPECT_EQ(Slots[0].GetPadding().Left, 2.0f);
	EXPECT_EQ(Slots[0].GetPadding().Bottom, 2.0f);

	SwitchFamily();
	ASSERT_EQ(All<STextBlock>(Row).size(), 3u) << "the open list shows the other family";
	EXPECT_EQ(ToUtf8(All<STextBlock>(Row)[0]->GetText().ToString()), "Text");
}

TEST_F(ColorCustomization, ItsListFollowsThePaletteWhileThePanelIsOpen)
{
	OpenColor(TEXT("White"));
	UVelmorantUIStyleConfiguration* Style = GetDefault<UVelmorantProUISettings>()->StyleConfiguration.Get();
	ASSERT_NE(Style, nullptr);
	Style->SimpleColors.AddDefaulted_GetRef().ID = "Snow";
	Style->SimpleColors.RemoveAt(0);
	EXPECT_EQ(Preview(), Magenta);
	EXPECT_THAT(Colors(), ElementsAre("Both", "Snow"));
	ChooseColor(TEXT("Snow"));
	EXPECT_EQ(Preview(), White);
}

TEST_F(ColorCustomization, PreviewsTheFreeColorInItsMode)
{
	const AVlmInteractiveSpot* Spot = OpenColor(TEXT("White"), EVelmorantColorMode::Custom);
	EXPECT_EQ(Preview(), Free);
	Choose(TEXT("Background Color/Color Mode"), TEXT("Style"));
	EXPECT_EQ(Preview(), White);
	EXPECT_EQ(Spot->BackgroundColor.ColorMode, EVelmorantColorMode::Style);
}

TEST_F(ColorCustomization, EditsSeveralColorsAtOnce)
{
	AVlmInteractiveSpot* First = SpawnSpot();
	AVlmInteractiveSpot* Second = SpawnSpot();
	First->BackgroundColor = FVelmorantColorHandler("White");
	Second->BackgroundColor = FVelmorantColorHandler("Both");
	Second->BackgroundColor.bUseContrast = true;
	Open({First, Second});
	EXPECT_EQ(Chosen(), "Multiple Values");
	EXPECT_THAT(Snapshot(), HasSubstr("[Use Contrast] (undetermined"));
	ChooseColor(TEXT("Both"));
	UseContrast(true);
	for (AVlmInteractiveSpot* Spot : {First, Second})
	{
		EXPECT_EQ(ToUtf8(Spot->BackgroundColor.ColorID), "Both");
		EXPECT_TRUE(Spot->BackgroundColor.bUseContrast);
		Spot->BackgroundColor.ColorMode = EVelmorantColorMode::Custom;
	}
	First->BackgroundColor.ColorCustom = Second->BackgroundColor.ColorCustom = FLinearColor(0.1f, 0.2f, 0.3f, 0.4f);
	EXPECT_EQ(Preview(), Free);
	Second->BackgroundColor.ColorCustom.G = 0.9f;
	EXPECT_EQ(Preview(), Magenta) << "several free colours have none in common";
}

TEST_F(ColorCustomization, IsShownForTheColorOfAnIcon)
{
	AVlmInteractiveSpot* Spot = OpenIcon(TEXT("Ship"), TEXT("Thin"), TEXT("anchor"));
	Spot->Icon.IconColor.ColorID = "Accent";
	EXPECT_EQ(ReadPart(TEXT("Icon/Icon Color"), TEXT("swatch")), Accent);
	Choose(TEXT("Icon/Icon Color/Color"), TEXT("White"));
	EXPECT_EQ(ToUtf8(Spot->Icon.IconColor.ColorID), "White");
	EXPECT_TRUE(Spot->BackgroundColor.ColorID.IsNone());
}

TEST_F(ColorCustomization, IsMagentaWithoutAPalette)
{
	{
		TGuardValue<UEngine*> NoEngine(GEngine, nullptr); // and so no UI subsystem
		const TStrongObjectPtr<AVlmInteractiveSpot> Spot(NewObject<AVlmInteractiveSpot>());
		Spot->BackgroundColor = FVelmorantColorHandler("White");
		Open({Spot.Get()});
		EXPECT_EQ(Preview(), Magenta);
		EXPECT_THAT(Colors(), IsEmpty());
		EXPECT_THAT(Snapshot(), HasSubstr(std::string("\"White\" (0 options, swatch ") + Magenta));
		SwitchFamily();
		EXPECT_THAT(Colors(), IsEmpty());
	}
	OpenColor(TEXT("Gone"));
	EXPECT_EQ(Preview(), Magenta) << "a colour that the palette does not have";
}

TEST_F(ColorCustomization, RaisesItsChecksOnceTheObjectIsGone)
{
	bEnsuresMayFail = true;
	AVlmInteractiveSpot* Spot = OpenColor(TEXT("White"));
	const TSharedRef<SWidget> Panel = View->GetWidget();
	Spot->Destroy();
	HostObjects::CollectGarbage();
	HostSnapshot::Choose(Panel, TEXT("Background Color/Color"), TEXT("Both"));
	HostSnapshot::Check(Panel, TEXT("Background Color/Use Contrast"), true);
	for (const char* Check : {"ColorHandler->GetValue(CurrentPoseName)", "ColorHandler->SetValue(FName(InValue))", "ContrastHandler->GetValue(ContrastValue)", "ContrastHandler->SetValue(bContrastValue)"})
	{
		EXPECT_THAT(WholeLog(), HasSubstr(std::string(Check) + " != FPropertyAccess::Fail"));
	}
}
