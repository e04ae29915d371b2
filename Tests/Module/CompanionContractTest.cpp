// Copyright Velmorant. All Rights Reserved.
// The tables of Docs/Companions.md against what the module really takes from its companions, found by the compiler.

#include "CompanionDeclarations.h"
#include "Containers/StringConv.h"
#include "Contract/CompanionTables.h"
#include "SourceText.h"
#include "SpecifierTable.h"
#include "TemporaryFolder.h"

#include <cstdio>
#include <gmock/gmock.h>
#include <set>
#include <sys/wait.h>

namespace CompanionContractTest
{
	namespace fs = std::filesystem;
	using FNames = std::set<std::string>;
	using FDeclarations = std::vector<FCompanionDeclaration>;

	const fs::path ModuleFolder = SourceText::Root / "Source/VelmorantProEditor";
	const fs::path CompanionsFolder = SourceText::Root / "Companions";
	const std::regex Word("(\\w+)");

	FNames AsSet(const std::vector<std::string>& Names)
	{
		return FNames(Names.begin(), Names.end());
	}

	/** All of the module in one text, without comments. */
	std::string ReadModule()
	{
		std::string Text;
		for (const fs::path& Source : SourceText::FindSources(ModuleFolder))
		{
			Text += SourceText::Read(Source);
		}
		return std::regex_replace(Text, std::regex("//[^\n\"]*|/\\*[^]*?\\*/"), "");
	}

	/** What the compiler says of the module when it sees the marked headers in place of the companions' own. */
	std::string CompileModule(const fs::path& MarkedFolder)
	{
		const std::string Command = "LC_ALL=C " VELMORANT_COMPILER " -I" + MarkedFolder.string() + " @" VELMORANT_MODULE_FLAGS " 2>&1";
		FILE* Pipe = popen(Command.c_str(), "r");
		std::string Output;
		char Buffer[4096];
		while (Pipe != nullptr && std::fgets(Buffer, sizeof(Buffer), Pipe) != nullptr)
		{
			Output += Buffer;
		}
		const int Status = Pipe != nullptr ? pclose(Pipe) : -1;
		EXPECT_TRUE(WIFEXITED(Status) && WEXITSTATUS(Status) == 0) << Output.substr(0, 4000);
		return Output;
	}

	/** Names of members that the module's own files use. */
	FNames FindUsedMembers(const std::string& Module, const FDeclarations& Declarations, const fs::path& MarkedFolder)
	{
		static const std::regex Use("Source/VelmorantProEditor/[^:\n]*:\\d+:\\d+: warning: [^\n]* is deprecated: (\\w+::\\w+)");
		static const std::regex ByName("GetChildHandle\\(\"(\\w+)\"\\)");
		FNames Used = AsSet(SourceText::FindAll(CompileModule(MarkedFolder), Use));
		EXPECT_GT(Used.size(), 50u) << "the compiler told of no uses";
		for (const std::string& Name : SourceText::FindAll(Module, ByName))
		{
			const auto Found = std::find_if(Declarations.begin(), Declarations.end(), [&Name](const FCompanionDeclaration& Each) { return Each.Member == Name; });
			EXPECT_NE(Found, Declarations.end()) << "no companion has a property " << Name;
			Used.insert(Found != Declarations.end() ? Found->GetName() : Name);
		}
		return Used;
	}

	/** Words that name types: those of the module's sources, and the classes of which its texts speak, without their letter. */
	FNames FindNamesOfTypes(const std::string& Module)
	{
		static const std::regex OfClass("\"(?:ClassIcon\\.|ClassThumbnail\\.)?(\\w+)\"");
		FNames Names = AsSet(SourceText::FindAll(Module, Word));
		for (const std::string& Name : SourceText::FindAll(Module, OfClass))
		{
			Names.insert({"A" + Name, "U" + Name});
		}
		return Names;
	}

	/** "Header: text" of all that the module uses, and of the types that stand in it. */
	FNames FindNeeds(const std::string& Module, const FDeclarations& Declarations, const fs::path& MarkedFolder)
	{
		const FNames UsedMembers = FindUsedMembers(Module, Declarations, MarkedFolder);
		FNames NamesOfTypes = FindNamesOfTypes(Module);
		FNames Needs;
		for (size_t Before = 1; Before != Needs.size();)
		{
			Before = Needs.empty() ? 1 : Needs.size();
			for (const FCompanionDeclaration& Each : Declarations)
			{
				const bool bUsed = Each.Member.empty() ? NamesOfTypes.count(Each.Type) > 0 : UsedMembers.count(Each.GetName()) > 0;
				if (bUsed && Needs.insert(Each.Header + " " + Each.Type + ": " + Each.Text).second)
				{
					const FNames Within = AsSet(SourceText::FindAll(Each.Type + " " + Each.Text, Word));
					NamesOfTypes.insert(Within.begin(), Within.end());
				}
			}
		}
		return Needs;
	}

	/** Rows of the tables with that heading, as the texts of their cells. */
	std::vector<std::vector<std::string>> ReadTables(const std::string& Heading)
	{
		std::vector<std::vector<std::string>> Rows;
		bool bWithin = false;
		std::stringstream Text(SourceText::Read(SourceText::Root / "Docs/Companions.md"));
		for (std::string Line; std::getline(Text, Line);)
		{
			bWithin = Line.rfind("|", 0) == 0 && (bWithin || Line == Heading);
			if (bWithin && Line != Heading && Line.rfind("|---", 0) != 0)
			{
				Rows.push_back(SourceText::FindAll(Line, std::regex("\\| ([^|]*)")));
			}
		}
		return Rows;
	}

	/** The declaration of a companion's class, up to its end. */
	std::string ReadBody(const std::string& Class)
	{
		const std::regex Declaration("\nclass \\w+ (" + Class + " [^;][^]*?\n\\};)");
		for (const char* Companion : CompanionModules)
		{
			for (const fs::path& Header : SourceText::FindSources(CompanionsFolder / Companion / "Public"))
			{
				const std::vector<std::string> Found = SourceText::FindAll(SourceText::Read(Header), Declaration);
				if (!Found.empty())
				{
					return Found[0];
				}
			}
		}
		return "";
	}

	std::vector<std::string> CodeIn(const std::string& Cell)
	{
		return SourceText::FindAll(Cell, std::regex("`([^`]+)`"));
	}

	/** As programs read the tables. */
	std::vector<FExpectedName> ReadExpected()
	{
		std::vector<FExpectedName> Names;
		EXPECT_TRUE(CompanionTables::Read(FString(UTF8_TO_TCHAR((SourceText::Root / "Docs/Companions.md").c_str())), Names));
		return Names;
	}

	/** "FProject BlueprintType": what the details panel, Blueprints of the panels and the factories need. */
	FNames FindNeededSpecifiers(const std::string& Module)
	{
		FNames OfBlueprints;
		for (const std::string& Declaration : SourceText::FindAll(Module, std::regex("(?:UFUNCTION|UPROPERTY)\\(Blueprint[^\n]*\n([^\n]*)")))
		{
			OfBlueprints.merge(AsSet(SourceText::FindAll(Declaration, Word)));
		}
		const FNames InDetails = AsSet(SourceText::FindAll(Module, std::regex("GetChildHandle\\(\"(\\w+)\"\\)")));
		FNames Factories = AsSet(SourceText::FindAll(Module, std::regex("class (\\w+) : public UVelmorantBlueprintFactory")));
		FNames Needs;
		for (const FExpectedName& Name : ReadExpected())
		{
			const bool bPicked = Name.Type == "FFontIconHandler" || Name.Type == "FVelmorantColorHandler";
			if (bPicked && InDetails.contains(Name.Member))
			{
				Needs.insert(Name.GetName() + " EditAnywhere");
			}
			const bool bValue = Name.Text.starts_with("struct") || Name.Text.starts_with("enum");
			if (bValue && Name.Member.empty() && OfBlueprints.contains(Name.Type))
			{
				Needs.insert(Name.Type + " BlueprintType");
			}
		}
		for (const std::string& Factory : Factories)
		{
			const std::vector<std::string> Made = SourceText::FindAll(Module, std::regex(Factory + "::" + Factory + "\\(\\)\\s*\\{\\s*SupportedClass = (\\w+)::"));
			EXPECT_EQ(Made.size(), 1u) << Factory;
			Needs.insert((Made.empty() ? "" : Made[0]) + " Blueprintable");
		}
		return Needs;
	}

	/** The same as FindNeeds() returns, of what is listed. */
	FNames ReadListed()
	{
		FNames Listed;
		for (const FExpectedName& Name : ReadExpected())
		{
			EXPECT_TRUE(Listed.insert(Name.Header + " " + Name.Type + ": " + Name.Text).second) << Name.Text << " is listed twice";
		}
		return Listed;
	}

	/** One to a line, so that rows can be taken over into the table. */
	std::string Without(const FNames& All, const FNames& Others)
	{
		std::string Result;
		for (const std::string& Name : All)
		{
			Result += Others.count(Name) > 0 ? "" : Name + "\n";
		}
		return Result;
	}

	void ExpectSame(const FNames& Listed, const FNames& Needs)
	{
		EXPECT_EQ(Without(Needs, Listed), "") << "the module relies on these, and Docs/Companions.md does not list them so";
		EXPECT_EQ(Without(Listed, Needs), "") << "Docs/Companions.md lists these, and the module does not rely on them so";
	}
}

using namespace CompanionContractTest;

TEST(CompanionContract, ListsWhatTheModuleTakesFromTheCompanionsAsItIsDeclared)
{
	const FTemporaryFolder Folder;
	const fs::path MarkedFolder = Folder.GetNative("Marked");
	const FDeclarations Declarations = ReadCompanionHeaders(MarkedFolder);
	ExpectSame(ReadListed(), FindNeeds(ReadModule(), Declarations, MarkedFolder));
}

TEST(CompanionContract, ListsEveryHeaderThatTheModuleIncludes)
{
	FNames Listed;
	for (const FExpectedName& Name : ReadExpected())
	{
		Listed.insert(Name.Header);
	}
	FNames Included;
	for (const fs::path& Source : SourceText::FindSources(ModuleFolder))
	{
		for (const std::string& Include : SourceText::IncludesOf(Source))
		{
			for (const char* Module : CompanionModules)
			{
				if (fs::exists(CompanionsFolder / Module / "Public" / Include))
				{
					Included.insert(Include);
				}
			}
		}
	}
	EXPECT_GT(Included.size(), 20u);
	EXPECT_EQ(Without(Included, Listed), "");
}

TEST(CompanionContract, TellsOfGivenNamesWhichPartsAreGiven)
{
	const std::vector<FExpectedName> Names = ReadExpected();
	size_t NumParts = 0;
	for (const std::vector<std::string>& Cells : ReadTables("| Declaration | Given parts |"))
	{
		for (const std::string& Listed : CodeIn(Cells[0]))
		{
			const auto Name = std::find_if(Names.begin(), Names.end(), [&Listed](const FExpectedName& Each) { return Each.GetName() == Listed; });
			ASSERT_NE(Name, Names.end()) << Listed << " is in none of the other tables";
			EXPECT_TRUE(Name->bGiven) << Listed;
			EXPECT_THAT(Name->GivenParts, testing::Each(testing::AnyOf("base class", "parameters", "result", "static"))) << Listed;
			NumParts += Name->GivenParts.size();
		}
	}
	EXPECT_GT(NumParts, 15u);
}

TEST(CompanionContract, ListsTheSpecifiersThatTheModuleNeeds)
{
	FNames Listed;
	for (const FExpectedName& Name : ReadExpected())
	{
		for (const std::string& Specifier : Name.Specifiers)
		{
			const std::string Known = Specifier.substr(0, Specifier.find('='));
			EXPECT_NE(HeaderTool::FindSpecifier(Known, Name.Member.empty() ? HeaderTool::InClass : HeaderTool::InProperty, false), nullptr) << Specifier << " of " << Name.GetName();
			Listed.insert(Name.GetName() + " " + Known);
		}
	}
	const FNames Needs = FindNeededSpecifiers(ReadModule());
	EXPECT_GE(Needs.size(), 13u);
	EXPECT_EQ(Without(Needs, Listed), "") << "Docs/Companions.md does not list these";
}

TEST(CompanionContract, ListsWhatTheModuleNamesInTexts)
{
	const std::string Module = ReadModule();
	FNames Listed;
	for (const std::vector<std::string>& Cells : ReadTables("| Name | What it is | Origin |"))
	{
		Listed.insert(Cells[1].substr(0, Cells[1].find(' ')) + " " + CodeIn(Cells[0])[0]);
		EXPECT_THAT(Cells[2], testing::AnyOf(testing::StartsWith("given"), testing::StartsWith("chosen")));
		if (Cells[1].rfind("category", 0) == 0)
		{
			EXPECT_THAT(ReadBody(CodeIn(Cells[2]).at(0)), testing::HasSubstr("Category = \"" + CodeIn(Cells[0])[0] + "\"")) << Cells[2];
		}
	}
	const std::vector<std::string> Lists = SourceText::FindAll(Module, std::regex("FName Categories\\[\\] = \\{([^}]+)\\}"));
	ASSERT_EQ(Lists.size(), 1u);
	FNames Needs;
	for (const std::string& Category : SourceText::FindAll(Lists[0], Word))
	{
		Needs.insert("category " + Category);
	}
	for (const std::string& Text : SourceText::FindAll(Module, std::regex("\"([^\"\n]*)\"")))
	{
		const std::string Asset = Text.rfind("/VelmorantPro/", 0) == 0 ? Text.substr(1, Text.find('.') - 1) : "";
		if (std::find(std::begin(CompanionModules), std::end(CompanionModules), Text) != std::end(CompanionModules))
		{
			Needs.insert("plugin " + Text);
		}
		else if (!Asset.empty() && !fs::is_directory(CompanionsFolder / "VelmorantPro/Content" / Asset.substr(13)))
		{
			EXPECT_TRUE(fs::exists(CompanionsFolder / "VelmorantPro/Content" / (Asset.substr(13) + ".uasset.json"))) << Asset << " is not there";
			Needs.insert("asset /" + Asset);
		}
	}
	ExpectSame(Listed, Needs);
}
