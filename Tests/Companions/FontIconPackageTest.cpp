// Copyright Velmorant. All Rights Reserved.
// The icon font as users have it, if it has been downloaded.

#include "FileBytes.h"
#include "FontPackage.h"
#include "HostPackages.h"
#include "Icons/FontIconImporter.h"
#include "ToolkitTest.h"
#include "VelmorantUISubsystem.h"

#include <fstream>
#include <nlohmann/json.hpp>

class FontIconPackage : public FToolkitTest
{
protected:
	static FFontIconImportResult Import()
	{
		return FFontIconImporter::Import(FString(UTF8_TO_TCHAR(FontPackage.c_str())), TEXT("FontAwesome"), TEXT("/Game/FontIcons"));
	}

	static const UDataTable* GetTable() { return UVelmorantUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesome")).IconDataTable; }

	static nlohmann::ordered_json ReadMetadata()
	{
		std::ifstream Stream(FontPackage / "metadata" / "icon-families.json");
		return nlohmann::ordered_json::parse(Stream);
	}

	static std::string Capitalize(std::string Text)
	{
		Text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(Text[0])));
		return Text;
	}

	/** The number of the one character in the text. */
	static std::string GetCodePoint(const FString& Character)
	{
		uint32 Number = Character.Len() == 2 ? 0x10000u + ((static_cast<uint32>(Character[0]) & 0x3FF) << 10) + (static_cast<uint32>(Character[1]) & 0x3FF) : static_cast<uint32>(Character[0]);
		std::string Text;
		for (; Number > 0; Number /= 16)
		{
			Text.insert(Text.begin(), "0123456789abcdef"[Number % 16]);
		}
		return Text;
	}

	/** An icon as it stands in the file, and as it stands in the table, has to be the same. */
	static void ExpectSame(const std::string& Name, const nlohmann::ordered_json& Icon, const FFontIconRow& Row)
	{
		SCOPED_TRACE(Name);
		EXPECT_EQ(GetCodePoint(Row.Character), Icon["unicode"].get<std::string>());
		EXPECT_EQ(ToUtf8(Row.Label), Icon["label"].get<std::string>());
		const auto& Styles = Icon["familyStylesByLicense"]["free"];
		ASSERT_EQ(Row.IconStyles.Num(), static_cast<int32>(Styles.size()));
		for (int32 Index = 0; Index < Row.IconStyles.Num(); ++Index)
		{
			EXPECT_EQ(ToUtf8(Row.IconStyles[Index]), Capitalize(Styles[static_cast<size_t>(Index)]["style"].get<std::string>()));
		}
		for (const auto& Term : Icon["search"]["terms"])
		{
			EXPECT_TRUE(Row.SearchTags.Contains(FString(UTF8_TO_TCHAR(Term.get<std::string>().c_str())))) << Term;
		}
		EXPECT_LE(Row.SearchTags.Num(), static_cast<int32>(Icon["search"]["terms"].size()));
	}
};

TEST_F(FontIconPackage, BringsInEveryIconAsTheFileHasIt)
{
	SKIP_WITHOUT_FONT_PACKAGE();
	StartEditor();
	const FFontIconImportResult Result = Import();
	ASSERT_TRUE(Result.Succeeded()) << ToUtf8(Result.Error->ToString());
	EXPECT_EQ(Result.NumIcons, 1895);
	EXPECT_EQ(Result.NumIconStyles, 2060);

	const nlohmann::ordered_json Metadata = ReadMetadata();
	const TArray<FName> Names = GetTable()->GetRowNames();
	ASSERT_EQ(Names.Num(), static_cast<int32>(Metadata.size()));
	int32 Index = 0;
	for (const auto& [Name, Icon] : Metadata.items())
	{
		ASSERT_EQ(ToUtf8(Names[Index]), Name) << "the order of the file";
		ExpectSame(Name, Icon, *GetTable()->FindRow<FFontIconRow>(Names[Index++], TEXT("Test")));
	}
}

TEST_F(FontIconPackage, IsTheSameAfterSavingAndOpeningTheProjectAgain)
{
	SKIP_WITHOUT_FONT_PACKAGE();
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	StartEditor();
	const nlohmann::ordered_json Metadata = ReadMetadata();
	ASSERT_NE(GetTable(), nullptr);
	const TArray<FName> Names = GetTable()->GetRowNames();
	ASSERT_EQ(Names.Num(), static_cast<int32>(Metadata.size()));
	int32 Index = 0;
	for (const auto& [Name, Icon] : Metadata.items())
	{
		ASSERT_EQ(ToUtf8(Names[Index]), Name);
		ExpectSame(Name, Icon, *GetTable()->FindRow<FFontIconRow>(Names[Index++], TEXT("Test")));
	}
}

TEST_F(FontIconPackage, EachStyleHasItsFontFile)
{
	SKIP_WITHOUT_FONT_PACKAGE();
	StartEditor();
	ASSERT_TRUE(Import().Succeeded());
	EXPECT_EQ(UVelmorantUISubsystem::Get()->GetAllFontIconsStylesNames(TEXT("FontAwesome")).Num(), 3);
	for (const auto& [Style, File] : {std::pair("Solid", "fa-solid-900.ttf"), std::pair("Regular", "fa-regular-400.ttf"), std::pair("Brands", "fa-brands-400.ttf")})
	{
		EXPECT_TRUE(ReadProjectFile(std::string("Content/FontIcons/FontAwesome-") + Style + ".ttf") == ReadBytes(FontPackage / "webfonts" / File)) << Style;
	}
}
