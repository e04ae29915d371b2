// Copyright Velmorant. All Rights Reserved.

#include "VelmorantUISubsystem.h"

#include "FontIconHandler.h"
#include "PaletteFile.h"
#include "Styling/AppStyle.h"
#include "ToolkitTest.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/** A project with a palette and an icon font of its own. */
class UISubsystem : public FToolkitTest
{
protected:
	void WriteIcons() const
	{
		WriteProjectFile("Content/Icons.uasset.json", R"j({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/VelmorantProUI.FontIconRow", "Rows": {
			"zebra": "(Label=\"Zebra\",Character=\"z\",IconStyles=(\"Thin\"))",
			"anchor": "(Label=\"Anchor\",Character=\"⚓\",IconStyles=(\"Bold\",\"Thin\"),SearchTags=(\"port\",\"black ship\"))",
			"mast": "(Label=\"Mast\",Character=\"🏠\",IconStyles=(\"Round\"))"}})j");
		WriteProjectFile("Content/Face.uasset.json", R"({"Class": "/Script/Engine.Font", "Format": 1, "Objects": [{"Name": "Face", "Class": "/Script/Engine.Font",
			"Properties": {"CompositeFont": {"DefaultTypeface": {"Fonts": [{"Name": "Unused"}, {"Name": "Round"}, {"Name": "Bold"}]}}}}]})");
	}

	void WriteSettings(const std::string& Lines) const { WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantProUI.VelmorantProUISettings]\n" + Lines); }

	void StartWithPalette()
	{
		WriteProjectFile("Content/Style.uasset.json", PaletteFile);
		WriteSettings("StyleConfiguration=/Game/Style.Style\n");
		StartEditor();
	}

	void StartWithIcons()
	{
		WriteIcons();
		WriteSettings("+FontIcons=(FontID=\"Plain\",IconDataTable=\"/Game/Icons.Icons\")\n"
					  "+FontIcons=(FontID=\"Faced\",IconDataTable=\"/Game/Icons.Icons\",Font=\"/Game/Face.Face\")\n"
					  "+FontIcons=(FontID=\"Lost\",IconDataTable=\"/Game/Gone.Gone\",Font=\"/Game/GoneFont.GoneFont\")\n"
					  "+FontIcons=(FontID=\"Wrong\",IconDataTable=\"/Game/Face.Face\")\n");
		StartEditor();
	}

	UVelmorantUISubsystem& Get() { return *UVelmorantUISubsystem::Get(); }

	std::vector<std::string> UiLog() { return ToUtf8(LogOf(TEXT("LogVelmorantProUI"))); }

	static inline const FLinearColor Magenta = FLinearColor(1.0f, 0.0f, 1.0f, 1.0f);
};

TEST_F(UISubsystem, IsThereWhileTheEngineIs)
{
	EXPECT_EQ(UVelmorantUISubsystem::Get(), nullptr);
	StartEditor();
	EXPECT_NE(UVelmorantUISubsystem::Get(), nullptr);
	StopEditor();
	EXPECT_EQ(UVelmorantUISubsystem::Get(), nullptr);
}

TEST_F(UISubsystem, AProjectWithoutSettingsHasNoColorsAndNoIcons)
{
	StartEditor();
	EXPECT_TRUE(Get().GetAllFontIconOptions().IsEmpty());
	EXPECT_TRUE(Get().GetAllColorSimpleOptions().IsEmpty());
	EXPECT_TRUE(Get().GetAllColorStyleOptions().IsEmpty());
	EXPECT_EQ(Get().GetVelmorantColorByID(TEXT("White"), false), Magenta);
	EXPECT_THAT(UiLog(), IsEmpty()) << "nothing set is nothing wrong";
}

TEST_F(UISubsystem, OffersTheColorsOfBothFamiliesInTheirOrder)
{
	StartWithPalette();
	EXPECT_THAT(ToUtf8(Get().GetAllColorSimpleOptions()), ElementsAre("White", "Both"));
	EXPECT_THAT(ToUtf8(Get().GetAllColorStyleOptions()), ElementsAre("Text", "Accent", "Both"));
}

TEST_F(UISubsystem, FindsColorsByIDInEitherFamily)
{
	StartWithPalette();
	struct FCase
	{
		const char* Behaviour;
		const TCHAR* ID;
		bool bContrast;
		FLinearColor Expected;
	};
	const FCase Cases[] = {
		{"a simple colour", TEXT("White"), false, FLinearColor(1, 1, 1, 1)},
		{"its contrast", TEXT("White"), true, FLinearColor(0, 0, 0.25f, 1)},
		{"a style colour, with its opacity", TEXT("Text"), false, FLinearColor(0.25f, 0.25f, 0.25f, 0.5f)},
		{"its contrast, with its own", TEXT("Text"), true, FLinearColor(1, 1, 0, 0.75f)},
		{"case does not count", TEXT("aCCent"), false, FLinearColor(1, 0.5f, 0, 1)},
		{"in both families the simple one counts", TEXT("Both"), false, FLinearColor(0.5f, 0, 0, 1)},
		{"an unknown colour stands out", TEXT("Chartreuse"), false, Magenta},
		{"and has no contrast", TEXT("Chartreuse"), true, Magenta},
		{"no colour at all", TEXT("None"), false, Magenta},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		EXPECT_EQ(Get().GetVelmorantColorByID(Case.ID, Case.bContrast), Case.Expected);
	}
}

TEST_F(UISubsystem, APaletteThatIsGoneIsToldOnceAndCountsAsNone)
{
	WriteSettings("StyleConfiguration=/Game/Style.Style\n");
	StartEditor();
	EXPECT_EQ(Get().GetVelmorantColorByID(TEXT("White"), false), Magenta);
	EXPECT_TRUE(Get().GetAllColorStyleOptions().IsEmpty());
	EXPECT_THAT(UiLog(), ElementsAre(HasSubstr("/Game/Style.Style")));
}

TEST_F(UISubsystem, OffersFontsStylesAndIconsInTheirOrder)
{
	StartWithIcons();
	EXPECT_THAT(ToUtf8(Get().GetAllFontIconOptions()), ElementsAre("Plain", "Faced", "Lost", "Wrong"));
	EXPECT_THAT(ToUtf8(Get().GetAllIconsNames(TEXT("plain"))), ElementsAre("zebra", "anchor", "mast"));
	EXPECT_THAT(ToUtf8(Get().GetAllFontIconsStylesNames(TEXT("Plain"))), ElementsAre("Thin", "Bold", "Round")) << "as they occur";
	EXPECT_THAT(ToUtf8(Get().GetAllFontIconsStylesNames(TEXT("Faced"))), ElementsAre("Round", "Bold", "Thin")) << "those of the typefaces first";
}

TEST_F(UISubsystem, GivesTheDataOfAFont)
{
	StartWithIcons();
	const FFontIconData Data = Get().GetFontIconDataByID(TEXT("Faced"));
	EXPECT_EQ(ToUtf8(Data.FontID), "Faced");
	ASSERT_NE(Data.Font, nullptr);
	EXPECT_EQ(ToUtf8(Data.Font->GetPathName()), "/Game/Face.Face");
	ASSERT_NE(Data.IconDataTable, nullptr);
	const FFontIconRow* Anchor = Data.IconDataTable->FindRow<FFontIconRow>(TEXT("anchor"), TEXT("Test"));
	ASSERT_NE(Anchor, nullptr);
	EXPECT_EQ(ToUtf8(Anchor->Label) + " " + ToUtf8(Anchor->Character), "Anchor ⚓");
	EXPECT_TRUE(Anchor->SearchTags.Contains(TEXT("Black Ship")));
	EXPECT_EQ(Data.IconDataTable->FindRow<FFontIconRow>(TEXT("mast"), TEXT("Test"))->Character.Len(), 2) << "a surrogate pair";
}

TEST_F(UISubsystem, AFontWithoutUsableTableHasNoIcons)
{
	StartWithIcons();
	for (const TCHAR* FontID : {TEXT("Lost"), TEXT("Wrong"), TEXT("Unknown"), TEXT("None")})
	{
		SCOPED_TRACE(ToUtf8(FString(FontID)));
		EXPECT_EQ(Get().GetFontIconDataByID(FontID).IconDataTable, nullptr);
		EXPECT_TRUE(Get().GetAllIconsNames(FontID).IsEmpty());
		EXPECT_TRUE(Get().GetAllFontIconsStylesNames(FontID).IsEmpty());
	}
	EXPECT_THAT(UiLog(), testing::UnorderedElementsAre(HasSubstr("/Game/Gone.Gone"), HasSubstr("/Game/GoneFont.GoneFont"), HasSubstr("/Game/Face.Face")));
}

TEST_F(UISubsystem, ATableWithOtherRowsIsNoIconTable)
{
	WriteProjectFile("Content/Icons.uasset.json", R"j({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/Engine.TableRowBase", "Rows": {"a": "()"}})j");
	WriteSettings("+FontIcons=(FontID=\"Plain\",IconDataTable=\"/Game/Icons.Icons\")\n");
	StartEditor();
	EXPECT_EQ(Get().GetFontIconDataByID(TEXT("Plain")).IconDataTable, nullptr);
	EXPECT_TRUE(Get().GetAllIconsNames(TEXT("Plain")).IsEmpty());
	EXPECT_THAT(UiLog(), ElementsAre(HasSubstr("rows are no icons")));
}

TEST_F(UISubsystem, AnIconIsDrawnInItsFontAndStyle)
{
	StartWithIcons();
	const FSlateFontInfo Info = FFontIconHandler(TEXT("Faced"), TEXT("Bold"), TEXT("anchor")).GenerateFontSlate(16);
	ASSERT_TRUE(Info.HasValidFont());
	EXPECT_EQ(ToUtf8(Info.FontObject->GetPathName()), "/Game/Face.Face");
	EXPECT_EQ(ToUtf8(Info.TypefaceFontName), "Bold");
	EXPECT_EQ(Info.Size, 16.0f);
}

TEST_F(UISubsystem, AnIconWithoutFontIsDrawnInTheAppsFont)
{
	StartWithIcons();
	FSlateFontInfo Expected = FAppStyle::GetFontStyle("NormalFont");
	Expected.Size = 20.0f;
	for (const TCHAR* FontID : {TEXT("Plain"), TEXT("Unknown"), TEXT("None")})
	{
		SCOPED_TRACE(ToUtf8(FString(FontID)));
		EXPECT_EQ(FFontIconHandler(FontID, TEXT("Bold"), TEXT("anchor")).GenerateFontSlate(20), Expected);
	}
	StopEditor();
	EXPECT_EQ(FFontIconHandler(TEXT("Faced"), TEXT("Bold"), TEXT("anchor")).GenerateFontSlate(20).Size, 20.0f) << "there is no engine to ask";
}
