// Copyright Velmorant. All Rights Reserved.

#include "FontPackage.h"
#include "ProjectOnDisk.h"

/** Scripts about the icons of the sample and of imported fonts. */
class IconScripts : public FProjectOnDisk
{
protected:
	IconScripts() { CopySample(); }

	void WritePackage(const std::string& Icons) const
	{
		Folder.Write("Package/metadata/icon-families.json", "{" + Icons + "}");
		Folder.Write("Package/webfonts/fa-solid-900.ttf", std::string("\0\1\0\0", 4) + "the rest of a font");
	}

	static inline const std::string Kite =
		R"("kite": {"unicode": "1fa81", "label": "Kite", "search": {"terms": ["wind"]}, "familyStylesByLicense": {"free": [{"family": "classic", "style": "solid"}]}})";
};

TEST_F(IconScripts, TheSampleHasIconsAndColoursOfItsOwn)
{
	const FProgramResult Result = Do(
		"open level /Game/Maps/HarborTower\n"
		"print icons\n"
		"expect property actor:VlmInteractiveSpot Icon.IconName boat\n"
		"expect icon HarborIcons boat style Regular word Yacht\n"
		"expect icon HarborIcons sunrise style Bold\n"
		"expect no icon HarborIcons sunrise style Regular\n"
		"expect no icon HarborIcons boat word yach\n"
		"expect no icon HarborIcons submarine\n"
		"expect property actor:VlmInteractiveSpot BackgroundColor.ColorID Primary\n"
		"expect property /Game/UI/HarborStyle SimpleColors.Num 6\n"
		"expect property /Game/UI/HarborStyle StyleColors.Num 6\n"
		"expect no unsaved\n");
	EXPECT_NE(Result.Output.find("HarborIcons: 30 icons (Regular, Bold)"), std::string::npos) << Result.Output;
}

TEST_F(IconScripts, AnImportedFontStaysWithTheProject)
{
	WritePackage(Kite);
	const FProgramResult Result = Do(
		"import icons ../Package as Toys into /Game/UI/Toys\n"
		"expect icon Toys kite style Solid word wind\n"
		"expect unsaved /Game/UI/Toys/ToysIcons\n"
		"save\n"
		"restart\n"
		"print icons Toys\n"
		"expect icon Toys kite style Solid word wind\n"
		"expect icon HarborIcons boat\n"
		"expect written Content/UI/Toys/Toys-Solid.ttf\n");
	EXPECT_NE(Result.Output.find("Toys: 1 icons, 1 with their styles (Solid), 1 search words"), std::string::npos) << Result.Output;
	EXPECT_NE(Result.Output.find("\xF0\x9F\xAA\x81 kite (Solid)"), std::string::npos) << Result.Output;
}

TEST_F(IconScripts, AnImportThatFailsTellsWhereAndChangesNothing)
{
	const struct
	{
		const char* Behaviour;
		std::string Icons;
		const char* Step;
		const char* Message;
	} Cases[] = {
		{"a field of the wrong kind", R"("kite": {"unicode": 5})", "import icons ../Package as Toys", "/Package/metadata/icon-families.json: icon \"kite\", unicode: this must be text, not a number; install the package"},
		{"broken JSON", "\n\n]", "import icons ../Package as Toys", "/Package/metadata/icon-families.json: line 3, byte "},
		{"no such folder", Kite, "import icons ../Nowhere as Toys", "/Nowhere/metadata/icon-families.json: there is no such file; give the folder of the npm package"},
		{"no name", Kite, "import icons ../Package", "say what the icon font is to be called"},
		{"no icon font", Kite, "print icons Toys", "no icons of a font \"Toys\"; its icon fonts: HarborIcons"},
	};
	const FFolderState Before = LookAtFolder(Folder.GetNative("Project"));
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WritePackage(Case.Icons);
		const FProgramResult Result = RunScript(std::string(Case.Step) + "\n");
		EXPECT_EQ(Result.ExitStatus, 3);
		EXPECT_NE(Result.Errors.find(Case.Message), std::string::npos) << Result.Errors;
		EXPECT_EQ(LookAtFolder(Folder.GetNative("Project")), Before);
	}
}

TEST_F(IconScripts, TheDownloadedFontIsImportedWhole)
{
	SKIP_WITHOUT_FONT_PACKAGE();
	const FProgramResult Result = Do(
		"import icons \"" + FontPackage.string() +
		"\" as FontAwesome\n"
		"save\n"
		"restart\n"
		"print icons\n"
		"expect icon FontAwesome house style Solid word abode\n"
		"expect icon FontAwesome heart style Regular word \"black heart\"\n"
		"expect no icon FontAwesome anchor style Regular\n"
		"expect icon FontAwesome github style Brands\n");
	EXPECT_NE(Result.Output.find("FontAwesome: 1895 icons ("), std::string::npos) << Result.Output;
}

TEST_F(IconScripts, ADesignerPicksFromTheDownloadedFont)
{
	SKIP_WITHOUT_FONT_PACKAGE();
	Do(
		"import icons \"" + FontPackage.string() +
		"\" as FontAwesome\n"
		"open level /Game/Maps/HarborTower\n"
		"inspect \"actor:Spot roof terrace\" as Spot\n"
		"choose Spot Icon.FontIconName FontAwesome\n"
		"expect items Spot \"Icon List\" 0\n" // the style is still that of the sample's font
		"choose Spot Icon.IconStyle Regular\n"
		"type Spot \"Icon List/Search\" \"black heart\"\n" // a search word of two words
		"expect items Spot \"Icon List\" 1\n"
		"choose Spot \"Icon List\" heart\n"
		"expect property \"actor:Spot roof terrace\" Icon.IconName heart\n"
		"expect row Spot Icon value \xEF\x80\x84\n"
		"type Spot \"Icon List/Search\" anchor\n"
		"expect items Spot \"Icon List\" 0\n"
		"choose Spot Icon.IconStyle Solid\n"
		"choose Spot \"Icon List\" anchor\n"
		"choose Spot Icon.FontIconName HarborIcons\n"
		"expect row Spot Icon value ⚓\n" // the sample's font has an icon of that name, too
		"discard\n");
}
