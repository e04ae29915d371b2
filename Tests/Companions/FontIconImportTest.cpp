// Copyright Velmorant. All Rights Reserved.

#include "Icons/FontIconImporter.h"

#include "HostPackages.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "VelmorantProUISettings.h"
#include "VelmorantUISubsystem.h"

#include <filesystem>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/** A small package beside the project, and an editor to import it. */
class FontIconImport : public FToolkitTest
{
protected:
	FontIconImport()
	{
		WriteIcons(R"("zeppelin": )" + MakeIcon("1f600", R"("sky", "hot air", "", "SKY")", "solid") + R"(, "anchor": )" + MakeIcon("f13d", R"("port")", R"(regular"}, {"family": "classic", "style": "solid"}, {"family": "classic", "style": "regular)"));
		for (const char* Style : {"solid-900", "regular-400", "sharp-solid-900"})
		{
			WriteFont(std::string("fa-") + Style, TrueTypeHead + Style);
		}
		WriteFont("fa-v4compatibility", TrueTypeHead);
	}

	static std::string MakeIcon(const std::string& CodePoint, const std::string& Terms, const std::string& Style)
	{
		return R"({"changes": ["1.0.0", {"unicode": "drawn"}], "search": {"terms": [)" + Terms + R"(]}, "unicode": ")" + CodePoint + R"(", "label": "Icon )" + CodePoint +
			R"(", "svgs": {"classic": {"solid": {"label": 7, "search": [], "path": "M3"}}}, "familyStylesByLicense": {"pro": [{"family": "duotone"}], "free": [{"family": "classic", "style": ")" + Style + R"("}]}})";
	}

	void WriteMetadata(const std::string& Json) const { Folder.Write("Package/metadata/icon-families.json", Json); }
	void WriteIcons(const std::string& Members) const { WriteMetadata("{" + Members + "}"); }
	void WriteFont(const std::string& Name, const std::string& Bytes) const { Folder.Write("Package/webfonts/" + Name + ".ttf", Bytes); }

	FFontIconImportResult Import(const TCHAR* FontID = TEXT("Sky"), const TCHAR* AssetFolder = TEXT("/Game/UI/Icons")) const
	{
		return FFontIconImporter::Import(Folder.Get("Package"), FontID, AssetFolder);
	}

	const UDataTable* GetTable(const TCHAR* FontID = TEXT("Sky")) { return UVelmorantUISubsystem::Get()->GetFontIconDataByID(FontID).IconDataTable; }

	/** All that rows say, an icon a line. */
	std::vector<std::string> Describe(const UDataTable* Table)
	{
		std::vector<std::string> Lines;
		if (Table != nullptr)
		{
			Table->ForeachRow<FFontIconRow>(TEXT("Test"), [&Lines](const FName& Name, const FFontIconRow& Row) {
				std::string Line = ToUtf8(Name) + " " + ToUtf8(Row.Character) + " " + ToUtf8(Row.Label) + ";";
				for (const FName Style : Row.IconStyles)
				{
					Line += " " + ToUtf8(Style);
				}
				for (const FString& Tag : Row.SearchTags)
				{
					Line += ", " + ToUtf8(Tag);
				}
				Lines.push_back(Line);
			});
		}
		return Lines;
	}

	std::vector<std::string> Unsaved()
	{
		std::vector<std::string> Names;
		for (const UPackage* Package : HostPackages::GetDirtyPackages())
		{
			Names.push_back(ToUtf8(Package->GetName()));
		}
		return Names;
	}

	static inline const std::string TrueTypeHead = std::string("\0\1\0\0", 4) + "0123456789 font ";
};

TEST_F(FontIconImport, FillsATableInTheOrderOfTheFile)
{
	StartEditor();
	const FFontIconImportResult Result = Import();
	ASSERT_TRUE(Result.Succeeded()) << ToUtf8(Result.Error->ToString());
	EXPECT_THAT(Describe(GetTable()), ElementsAre("zeppelin 😀 Icon 1f600; Solid, SKY, hot air", "anchor \xEF\x84\xBD Icon f13d; Regular Solid, port"));
	EXPECT_EQ(Result.NumIcons, 2);
	EXPECT_EQ(Result.NumIconStyles, 3) << "a style said twice is one";
	EXPECT_EQ(Result.NumSearchTags, 3) << "letter case does not tell words apart";
}

TEST_F(FontIconImport, MakesAFontWithATypefaceForEachStyle)
{
	WriteIcons(R"("a": )" + MakeIcon("61", "", R"(solid"}, {"family": "sharp", "style": "solid)"));
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	const UFont* Font = UVelmorantUISubsystem::Get()->GetFontIconDataByID(TEXT("Sky")).Font;
	ASSERT_NE(Font, nullptr);
	const TArray<FTypefaceEntry>& Faces = Font->CompositeFont.DefaultTypeface.Fonts;
	ASSERT_EQ(Faces.Num(), 2);
	EXPECT_EQ(ToUtf8(Faces[0].Name) + " " + ToUtf8(Faces[0].Font.GetFontFilename()), "Solid UI/Icons/Sky-Solid.ttf");
	EXPECT_EQ(ToUtf8(Faces[1].Name) + " " + ToUtf8(Faces[1].Font.GetFontFilename()), "SharpSolid UI/Icons/Sky-SharpSolid.ttf");
	EXPECT_EQ(ReadProjectFile("Content/UI/Icons/Sky-Solid.ttf"), TrueTypeHead + "solid-900");
	EXPECT_EQ(ReadProjectFile("Content/UI/Icons/Sky-SharpSolid.ttf"), TrueTypeHead + "sharp-solid-900");
}

TEST_F(FontIconImport, IsTheSameAfterSavingAndOpeningTheProjectAgain)
{
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	const std::vector<std::string> Before = Describe(GetTable());
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/UI/Icons/SkyFont", "/Game/UI/Icons/SkyIcons"));
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	StartEditor();
	EXPECT_EQ(Describe(GetTable()), Before);
	const UFont* Font = UVelmorantUISubsystem::Get()->GetFontIconDataByID(TEXT("Sky")).Font;
	ASSERT_NE(Font, nullptr);
	EXPECT_EQ(ToUtf8(Font->CompositeFont.DefaultTypeface.Fonts.Last().Font.GetFontFilename()), "UI/Icons/Sky-Regular.ttf");
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
}

TEST_F(FontIconImport, AgainReplacesTheIconsAndKeepsOtherFonts)
{
	StartEditor();
	ASSERT_TRUE(Import(TEXT("Other")).Succeeded());
	ASSERT_TRUE(Import().Succeeded());
	const UDataTable* Table = GetTable();
	WriteIcons(R"("mast": )" + MakeIcon("30", "", "solid") + R"(, "zeppelin": )" + MakeIcon("31", "", "regular"));
	ASSERT_TRUE(Import().Succeeded());
	EXPECT_EQ(GetTable(), Table) << "whoever shows the table keeps it";
	EXPECT_THAT(Describe(Table), ElementsAre("mast 0 Icon 30; Solid", "zeppelin 1 Icon 31; Regular"));
	EXPECT_EQ(Describe(GetTable(TEXT("Other"))).size(), 2u);
	EXPECT_EQ(UVelmorantUISubsystem::Get()->GetAllFontIconOptions().Num(), 2);
	EXPECT_THAT(ReadProjectFile("Config/DefaultGame.ini"), HasSubstr("+FontIcons=(FontID=\"Sky\",IconDataTable=\"/Game/UI/Icons/SkyIcons.SkyIcons\""));
}

TEST_F(FontIconImport, LeavesIconsOutThatNoFreeFontHas)
{
	std::string Paid = MakeIcon("62", "", "solid");
	Paid.replace(Paid.find(R"({"family": "classic", "style": "solid"})"), std::string(R"({"family": "classic", "style": "solid"})").size(), "");
	WriteIcons(R"("a": )" + MakeIcon("61", "", "solid") + R"(, "paid": )" + Paid);
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	EXPECT_THAT(Describe(GetTable()), ElementsAre("a a Icon 61; Solid"));
}

TEST_F(FontIconImport, AMalformedFileIsToldWithItsPlaceAndLeavesTheOldIcons)
{
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	const std::vector<std::string> Icons = Describe(GetTable());
	const std::string Settings = ReadProjectFile("Config/DefaultGame.ini");
	const std::string Good = R"("good": )" + MakeIcon("61", "", "solid") + ", ";
	struct FCase
	{
		const char* Behaviour;
		std::string Json;
		const char* Place;
		const char* Reason;
	};
	const FCase Cases[] = {
		{"empty", "", "line 1, byte 0", "no valid JSON"},
		{"cut off", "{" + Good + "\n\"cut\": {\"unicode\": \"6", "line 2, byte ", "no valid JSON"},
		{"text behind the end", "{}\n\n x", "line 3, byte ", "no valid JSON"},
		{"no UTF-8", "{" + Good + "\"bad\": {\"label\": \"\xff\"}}", "line 1, byte ", "no valid JSON"},
		{"no icons", "{}", "", "no icons"},
		{"an array", "[]", "", "must be an object, not an array"},
		{"an icon that is a number", "{" + Good + R"("b": 7})", "icon \"b\"", "must be an object, not a number"},
		{"a code point that is a number", "{" + Good + R"("b": {"unicode": 97}})", "icon \"b\", unicode", "must be text, not a number"},
		{"a code point that is not hexadecimal", "{" + Good + R"("b": {"unicode": "f0g1"}})", "icon \"b\", unicode", "\"f0g1\" is no character's number"},
		{"a code point beyond Unicode", "{" + Good + R"("b": {"unicode": "110000"}})", "icon \"b\", unicode", "\"110000\""},
		{"half a surrogate pair", "{" + Good + R"("b": {"unicode": "d800"}})", "icon \"b\", unicode", "\"d800\""},
		{"an empty code point", "{" + Good + R"("b": {"unicode": ""}})", "icon \"b\", unicode", "\"\""},
		{"a label that is null", "{" + Good + R"("b": {"label": null}})", "icon \"b\", label", "must be text, not null"},
		{"terms that are text", "{" + Good + R"("b": {"search": {"terms": "x"}}})", "icon \"b\", search.terms", "must be an array, not text"},
		{"a term that is no text", "{" + Good + R"("b": {"search": {"terms": ["x", "y", true]}}})", "icon \"b\", search.terms[2]", "must be text, not true or false"},
		{"styles that are an object", "{" + Good + R"("b": {"familyStylesByLicense": {"free": {}}}})", "icon \"b\", familyStylesByLicense.free", "must be an array, not an object"},
		{"a style without its name", "{" + Good + R"("b": {"familyStylesByLicense": {"free": [{"family": "classic"}]}}})", "icon \"b\", familyStylesByLicense.free[0]", "needs \"family\" and \"style\""},
		{"a style that is no file name", "{" + Good + R"("b": {"familyStylesByLicense": {"free": [{"family": "classic", "style": "../x"}]}}})", "icon \"b\", familyStylesByLicense.free[0].style", "\"../x\""},
		{"no code point", "{" + Good + R"("b": {"label": "B", "familyStylesByLicense": {"free": []}}})", "icon \"b\"", "no \"unicode\""},
		{"no label", "{" + Good + R"("b": {"unicode": "62", "familyStylesByLicense": {"free": []}}})", "icon \"b\"", "no \"label\""},
		{"no styles", "{" + Good + R"("b": {"unicode": "62", "label": "B"}})", "icon \"b\"", "familyStylesByLicense"},
		{"a name twice", "{" + Good + R"("GOOD": )" + MakeIcon("62", "", "solid") + "}", "icon \"GOOD\"", "comes twice"},
		{"a name that is none", "{" + Good + R"("None": )" + MakeIcon("62", "", "solid") + "}", "icon \"None\"", "cannot be an icon's name"},
		{"an endless name", "{" + Good + "\"" + std::string(5000, 'x') + "\": " + MakeIcon("62", "", "solid") + "}", "icon \"xxx", "cannot be an icon's name"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		WriteMetadata(Case.Json);
		const FFontIconImportResult Result = Import();
		ASSERT_FALSE(Result.Succeeded());
		EXPECT_EQ(ToUtf8(Result.Error->File), ToUtf8(Folder.Get("Package/metadata/icon-families.json")));
		EXPECT_THAT(ToUtf8(Result.Error->Place), StartsWith(Case.Place));
		EXPECT_EQ(ToUtf8(Result.Error->Place).empty(), std::string(Case.Place).empty());
		EXPECT_THAT(ToUtf8(Result.Error->Reason), HasSubstr(Case.Reason));
		EXPECT_FALSE(Result.Error->Remedy.IsEmpty());
		EXPECT_THAT(ToUtf8(LogOf(TEXT("LogVelmorantFontIcons")).Last()), HasSubstr(ToUtf8(Result.Error->ToString())));
		EXPECT_EQ(Describe(GetTable()), Icons);
		EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
		EXPECT_EQ(ReadProjectFile("Config/DefaultGame.ini"), Settings);
	}
}

TEST_F(FontIconImport, AFileThatIsCutOffAnywhereLeavesTheOldIcons)
{
	const std::string Whole = Folder.Read("Package/metadata/icon-families.json");
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	const std::vector<std::string> Icons = Describe(GetTable());
	for (size_t Length = 0; Length < Whole.size(); Length += 7)
	{
		WriteMetadata(Whole.substr(0, Length));
		const FFontIconImportResult Result = Import();
		ASSERT_FALSE(Result.Succeeded()) << Length;
		ASSERT_EQ(ToUtf8(Result.Error->Place), "line 1, byte " + std::to_string(Length)) << ToUtf8(Result.Error->Reason);
	}
	EXPECT_EQ(Describe(GetTable()), Icons);
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
}

TEST_F(FontIconImport, TellsWhichFileOfThePackageIsMissing)
{
	StartEditor();
	struct FCase
	{
		const char* Behaviour;
		const char* Removed;
		const char* File;
		const char* Reason;
	};
	const FCase Cases[] = {
		{"the font of one style", "webfonts/fa-regular-400.ttf", "webfonts", "there is no font file fa-regular-<weight>.ttf"},
		{"all fonts", "webfonts", "webfonts", "there is no font file fa-solid-<weight>.ttf"},
		{"the icons", "metadata/icon-families.json", "metadata/icon-families.json", "there is no such file"},
		{"everything", "", "metadata/icon-families.json", "there is no such file"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		std::filesystem::remove_all(Folder.GetNative("Package") / Case.Removed);
		const FFontIconImportResult Result = Import();
		ASSERT_FALSE(Result.Succeeded());
		EXPECT_EQ(ToUtf8(Result.Error->File), ToUtf8(Folder.Get(std::string("Package/") + Case.File)));
		EXPECT_EQ(ToUtf8(Result.Error->Reason), Case.Reason);
		EXPECT_THAT(ToUtf8(Result.Error->Remedy), HasSubstr("package"));
	}
	EXPECT_FALSE(Folder.Exists("Project/Content")) << "nothing was copied";
	EXPECT_TRUE(UVelmorantUISubsystem::Get()->GetAllFontIconOptions().IsEmpty());
}

TEST_F(FontIconImport, RefusesAFontFileThatIsNone)
{
	StartEditor();
	for (const std::string& Bytes : {std::string(), std::string("wOF2 and so on and on"), TrueTypeHead.substr(0, 6)})
	{
		WriteFont("fa-regular-400", Bytes);
		const FFontIconImportResult Result = Import();
		ASSERT_FALSE(Result.Succeeded());
		EXPECT_EQ(ToUtf8(Result.Error->ToString()), ToUtf8(Folder.Get("Package/webfonts/fa-regular-400.ttf")) + ": this is no TrueType font; install the package again");
	}
	EXPECT_TRUE(UVelmorantUISubsystem::Get()->GetAllFontIconOptions().IsEmpty());
}

TEST_F(FontIconImport, RefusesNamesThatAssetsCannotBear)
{
	StartEditor();
	for (const TCHAR* FontID : {TEXT("None"), TEXT("Two words"), TEXT("a/b"), TEXT("../up"), TEXT("back\\slash"), TEXT("dot.dot")})
	{
		const FFontIconImportResult Result = Import(FontID);
		ASSERT_FALSE(Result.Succeeded()) << ToUtf8(FString(FontID));
		EXPECT_THAT(ToUtf8(Result.Error->Reason), HasSubstr("cannot name an icon font"));
	}
	for (const TCHAR* AssetFolder : {TEXT(""), TEXT("/Game"), TEXT("/Game/"), TEXT("/Game/UI/"), TEXT("/Engine/UI"), TEXT("/Game/../up"), TEXT("UI"), TEXT("/Game//UI")})
	{
		const FFontIconImportResult Result = Import(TEXT("Sky"), AssetFolder);
		ASSERT_FALSE(Result.Succeeded()) << ToUtf8(FString(AssetFolder));
		EXPECT_THAT(ToUtf8(Result.Error->Reason), HasSubstr("no folder for assets"));
	}
	EXPECT_FALSE(Folder.Exists("Project/Content"));
}

TEST_F(FontIconImport, LeavesAssetsAloneThatAreNoIcons)
{
	WriteProjectFile("Content/UI/Icons/SkyIcons.uasset.json", R"j({"Class": "/Script/Engine.DataTable", "RowStruct": "/Script/Engine.TableRowBase", "Rows": {"a": "()"}})j");
	WriteProjectFile("Content/UI/Icons/SeaIcons.uasset.json", R"({"Class": "/Script/VelmorantProUI.VelmorantUIStyleConfiguration", "Format": 1, "Objects": [{"Name": "SeaIcons", "Class": "/Script/VelmorantProUI.VelmorantUIStyleConfiguration"}]})");
	WriteProjectFile("Content/UI/Icons/LandFont.uasset", "binary");
	StartEditor();
	const struct
	{
		const TCHAR* FontID;
		const char* Reason;
	} Cases[] = {{TEXT("Sky"), "its rows are no icons"}, {TEXT("Sea"), "an asset of another kind"}, {TEXT("Land"), "cannot be loaded"}};
	for (const auto& Case : Cases)
	{
		const FFontIconImportResult Result = Import(Case.FontID);
		ASSERT_FALSE(Result.Succeeded()) << Case.Reason;
		EXPECT_THAT(ToUtf8(Result.Error->Reason), HasSubstr(Case.Reason));
		EXPECT_THAT(ToUtf8(Result.Error->File), HasSubstr(ToUtf8(FString(Case.FontID))));
	}
	EXPECT_TRUE(UVelmorantUISubsystem::Get()->GetAllFontIconOptions().IsEmpty());
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
}

TEST_F(FontIconImport, SettingsThatCannotBeWrittenLeaveTheOldIcons)
{
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	const std::vector<std::string> Icons = Describe(GetTable());
	std::filesystem::permissions(Folder.GetNative("Project/Config/DefaultGame.ini"), std::filesystem::perms(0444));
	WriteIcons(R"("mast": )" + MakeIcon("30", "", "solid"));
	const FFontIconImportResult Result = Import(TEXT("Other"));
	ASSERT_FALSE(Result.Succeeded());
	EXPECT_THAT(ToUtf8(Result.Error->File), HasSubstr("Config/DefaultGame.ini"));
	EXPECT_EQ(Describe(GetTable()), Icons);
	EXPECT_EQ(GetTable(TEXT("Other")), nullptr);
	EXPECT_EQ(GetDefault<UVelmorantProUISettings>()->FontIcons.Num(), 1);
	EXPECT_FALSE(Folder.Exists("Project/Content/UI/Icons/Other-Solid.ttf"));
	EXPECT_TRUE(Folder.Exists("Project/Content/UI/Icons/Sky-Solid.ttf")) << "that of the font before";
}

TEST_F(FontIconImport, AFontFileThatCannotBeCopiedLeavesNoOthersBehind)
{
	StartEditor();
	WriteProjectFile("Content/UI/Icons/Sky-Regular.ttf/in-the-way.txt", "a folder");
	const FFontIconImportResult Result = Import();
	ASSERT_FALSE(Result.Succeeded());
	EXPECT_THAT(ToUtf8(Result.Error->File), HasSubstr("Content/UI/Icons/Sky-Regular.ttf"));
	EXPECT_FALSE(Folder.Exists("Project/Content/UI/Icons/Sky-Solid.ttf")) << "copied before the one that failed";
	EXPECT_TRUE(UVelmorantUISubsystem::Get()->GetAllFontIconOptions().IsEmpty());
}
