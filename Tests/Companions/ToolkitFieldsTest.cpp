// Copyright Velmorant. All Rights Reserved.

#include "PaletteFile.h"
#include "Slate/WidgetTransform.h"
#include "TestPanel.h"
#include "ToolkitTest.h"
#include "VlmImage.h"
#include "VlmNumberField.h"
#include "VlmText.h"
#include "VlmWidgetTransformFields.h"
#include "Widgets/Text/STextBlock.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace ToolkitFieldsTest
{
	const char* const Fields = R"j({
		"ParentClass": "/Script/VelmorantProUI.VlmListEntry",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "VlmText", "Name": "Words", "Properties": {"Text": "Ahoy", "FontStyle": "title", "ColorHandler": "(ColorID=\"Accent\")"}},
			{"Class": "VlmNumberField", "Name": "Any"},
			{"Class": "VlmNumberField", "Name": "Whole", "Properties": {"bWhole": true}}]}})j";

	const char* const TransformFields = R"({
		"ParentClass": "/Script/VelmorantProUI.VlmWidgetTransformFields",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "VlmNumberField", "Name": "MoveX"}, {"Class": "VlmNumberField", "Name": "MoveY"}, {"Class": "VlmNumberField", "Name": "ScaleX"}, {"Class": "VlmNumberField", "Name": "ScaleY"},
			{"Class": "VlmNumberField", "Name": "ShearX"}, {"Class": "VlmNumberField", "Name": "ShearY"}, {"Class": "VlmNumberField", "Name": "Angle"}]}})";
}

using namespace ToolkitFieldsTest;

/** The toolkit's texts and fields, in a project with a palette. */
class ToolkitFields : public FToolkitTest
{
protected:
	ToolkitFields()
	{
		WriteProjectFile("Content/Style.uasset.json", PaletteFile);
		WriteProjectFile("Config/DefaultGame.ini", "[/Script/VelmorantProUI.VelmorantProUISettings]\nStyleConfiguration=/Game/Style.Style\n");
	}

	FTestPanel Show(const char* Layout)
	{
		StartEditor();
		FTestPanel Panel(Layout, {});
		Panel.Show();
		return Panel;
	}

	static TSharedRef<STextBlock> OnScreen(UVlmText& Text) { return StaticCastSharedRef<STextBlock>(Text.TakeWidget()); }

	static std::vector<std::string> UiLog() { return ToUtf8(LogOf(TEXT("LogVelmorantProUI"))); }
};

TEST_F(ToolkitFields, ATextShowsItsStyleAndColour)
{
	FTestPanel Panel = Show(Fields);
	UVlmText& Text = *Panel.Find<UVlmText>(TEXT("Words"));
	EXPECT_EQ(OnScreen(Text)->GetFont().Size, 14.0f);
	EXPECT_EQ(ToUtf8(OnScreen(Text)->GetFont().TypefaceFontName), "Bold");
	EXPECT_EQ(OnScreen(Text)->GetColorAndOpacity(), FSlateColor(FLinearColor(1.0f, 0.5f, 0.0f, 1.0f)));
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("text Words \"Ahoy\" (Bold 14, #FFBC00)\n"));

	Text.SetFontStyle("SMALL");
	EXPECT_EQ(OnScreen(Text)->GetFont().Size, 8.0f);
	FVelmorantColorHandler Handler("Text");
	Handler.bUseContrast = true;
	Text.SetColorHandler(Handler);
	EXPECT_EQ(OnScreen(Text)->GetColorAndOpacity(), FSlateColor(FLinearColor(1.0f, 1.0f, 0.0f, 0.75f)));
	Handler.bOverrideOpacity = true;
	Handler.OpacityOverride = 0.25f;
	Text.SetColorHandler(Handler);
	EXPECT_EQ(OnScreen(Text)->GetColorAndOpacity(), FSlateColor(FLinearColor(1.0f, 1.0f, 0.0f, 0.25f)));
	Handler.ColorMode = EVelmorantColorMode::Custom;
	Handler.ColorCustom = FLinearColor(0.0f, 0.25f, 0.0f, 1.0f);
	Text.SetColorHandler(Handler);
	EXPECT_EQ(OnScreen(Text)->GetColorAndOpacity(), FSlateColor(FLinearColor(0.0f, 0.25f, 0.0f, 0.25f)));
	EXPECT_THAT(UiLog(), IsEmpty());
}

TEST_F(ToolkitFields, ATextWithAMissingStyleIsPlainAndWithAMissingColourMagenta)
{
	FTestPanel Panel = Show(Fields);
	UVlmText& Text = *Panel.Find<UVlmText>(TEXT("Words"));
	Text.SetColorHandler(FVelmorantColorHandler("Chartreuse"));
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("#FF00FF"));
	Text.SetColorHandler(FVelmorantColorHandler());
	EXPECT_THAT(Panel.Snapshot(), Not(HasSubstr("#"))) << "nobody asked for a colour";
	for (int32 Time = 0; Time < 2; ++Time)
	{
		Text.SetFontStyle("huge");
		EXPECT_THAT(Panel.Snapshot(), HasSubstr("text Words \"Ahoy\"\n"));
		Text.SetFontStyle("title");
	}
	EXPECT_THAT(UiLog(), ElementsAre(HasSubstr("no font style \"huge\""))) << "said once";
}

TEST_F(ToolkitFields, ANumberFieldRefusesWhatIsNoNumberBesideIt)
{
	FTestPanel Panel = Show(Fields);
	const struct
	{
		const TCHAR* Field;
		const TCHAR* Text;
		const char* Error; // empty: it is a number
		double Number;
	} Cases[] = {
		{TEXT("Whole"), TEXT("02"), "", 2},
		{TEXT("Whole"), TEXT(" -7 "), "", -7},
		{TEXT("Whole"), TEXT("2147483647"), "", 2147483647},
		{TEXT("Whole"), TEXT("2147483648"), "'2147483648' is too large", 0},
		{TEXT("Whole"), TEXT("1.0"), "'1.0' is not a whole number", 0},
		{TEXT("Whole"), TEXT("first"), "'first' is not a whole number", 0},
		{TEXT("Whole"), TEXT(""), "Enter a whole number", 0},
		{TEXT("Any"), TEXT("-0.50"), "", -0.5},
		{TEXT("Any"), TEXT(".5"), "", 0.5},
		{TEXT("Any"), TEXT("+3."), "", 3},
		{TEXT("Any"), TEXT("1,5"), "'1,5' is not a number", 0},
		{TEXT("Any"), TEXT("1e3"), "'1e3' is not a number", 0},
		{TEXT("Any"), TEXT("."), "'.' is not a number", 0},
		{TEXT("Any"), TEXT("nan"), "'nan' is not a number", 0},
		{TEXT("Any"), TEXT("2),X=(3"), "'2),X=(3' is not a number", 0},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(ToUtf8(FString(Case.Text)));
		Panel.Type(Case.Field, Case.Text);
		UVlmNumberField& Field = *Panel.Find<UVlmNumberField>(Case.Field);
		if (*Case.Text == 0)
		{
			EXPECT_FALSE(Field.HasError()) << "not while nobody asks for it";
		}
		EXPECT_EQ(Field.CheckNumber(), *Case.Error == 0);
		EXPECT_EQ(Field.GetNumber(), Case.Number);
		EXPECT_EQ(Field.HasError(), *Case.Error != 0);
		if (*Case.Error != 0)
		{
			EXPECT_THAT(Panel.Snapshot(), HasSubstr("\"" + ToUtf8(FString(Case.Text)) + "\" (error: " + Case.Error + ")\n"));
		}
	}
	Panel.Find<UVlmNumberField>(TEXT("Any"))->SetNumber(2.5);
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("edit Any \"2.5\"\n")) << "a number that is set takes the error away";
	Panel.Type(TEXT("Any"), TEXT("x"));
	Panel.Find<UVlmNumberField>(TEXT("Any"))->ClearNumber();
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("edit Any \"\"\n"));
}

TEST_F(ToolkitFields, TransformFieldsGiveATransformWhenAllOfThemAreNumbers)
{
	FTestPanel Panel = Show(TransformFields);
	UVlmWidgetTransformFields& All = *Panel.Get<UVlmWidgetTransformFields>();
	FWidgetTransform Transform(FVector2D(1.0, -2.0), FVector2D(0.123456789, 1.0), FVector2D(0.0, 30.0), 33.3f);
	All.SetTransform(Transform);
	EXPECT_TRUE(All.CheckNumbers());
	EXPECT_EQ(All.GetTransform(), Transform) << "to the last digit";
	EXPECT_EQ(Panel.Read(TEXT("Angle")), "33.3");

	Panel.Type(TEXT("MoveX"), TEXT("7"));
	Panel.Type(TEXT("ScaleX"), TEXT("wide"));
	Panel.Type(TEXT("Angle"), TEXT(""));
	EXPECT_FALSE(All.CheckNumbers());
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("edit MoveX \"7\"\n"));
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("edit ScaleX \"wide\" (error: 'wide' is not a number)\n"));
	EXPECT_THAT(Panel.Snapshot(), HasSubstr("edit Angle \"\" (error: Enter a number)\n")) << "all of them are told";
	Panel.Type(TEXT("ScaleX"), TEXT("2"));
	Panel.Type(TEXT("Angle"), TEXT("-45"));
	EXPECT_TRUE(All.CheckNumbers());
	EXPECT_EQ(All.GetTransform(), FWidgetTransform(FVector2D(7.0, -2.0), FVector2D(2.0, 1.0), FVector2D(0.0, 30.0), -45.0f));
	All.ClearTransform();
	EXPECT_EQ(Panel.Read(TEXT("MoveX")), "");
}
