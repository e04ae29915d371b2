// Copyright Velmorant. All Rights Reserved.
// What the targets name, see and include.

#include "Layers.h"

#include <cstdio>
#include <fstream>
#include <gmock/gmock.h>
#include <regex>
#include <sstream>
#include <sys/wait.h>

namespace LayersTest
{
	namespace fs = std::filesystem;
	using Layers::FLayer;
	using FNames = std::set<std::string>;

	const fs::path Root = VELMORANT_SOURCE_DIR;
	const fs::path Generated = fs::path(VELMORANT_LAYERS).parent_path() / "Generated";

	/** A module's own name, the modules that it names, and those that these name for their users. */
	FNames VisibleTo(const FLayer& Layer)
	{
		FNames Result = {Layer.Name};
		std::vector<std::string> Open(Layer.Public.begin(), Layer.Public.end());
		Open.insert(Open.end(), Layer.Private.begin(), Layer.Private.end());
		while (!Open.empty())
		{
			const FLayer& Next = Layers::Find(Open.back());
			Open.pop_back();
			if (Result.insert(Next.Name).second)
			{
				Open.insert(Open.end(), Next.Public.begin(), Next.Public.end());
			}
		}
		return Result;
	}

	/** The module whose folder it is, or "". */
	std::string OwnerOf(const fs::path& IncludeFolder)
	{
		for (const FLayer& Layer : Layers::All())
		{
			if (!Layer.bProgram && (IncludeFolder == Layer.Folder || Layers::IsBelow(IncludeFolder, Layer.Folder) || IncludeFolder == Generated / Layer.Name))
			{
				return Layer.Name;
			}
		}
		return "";
	}

	/** The product and the companions run in the engine, too. */
	bool IsForEngine(const FLayer& Layer)
	{
		return Layers::IsBelow(Layer.Folder, Root / "Source") || Layers::IsBelow(Layer.Folder, Root / "Companions");
	}

	bool MaySee(const FLayer& Layer, const FLayer& Owner, const fs::path& Folder)
	{
		if (Owner.Name == Layer.Name || Owner.bFlat || Folder == Owner.Folder / "Public" || Folder == Owner.Folder / "Detail" || Folder == Generated / Owner.Name)
		{
			return true;
		}
		if (Folder == Owner.Folder / "Internal")
		{
			return !IsForEngine(Layer);
		}
		// Tests look at rules that no outsider needs. So does the window's plan: a rule of its own could differ from the product's.
		const bool bPlan = Layer.Name == "DesktopParts" && Owner.Name == "VelmorantProEditor";
		return bPlan || Layers::IsBelow(Layer.Folder / ".", Root / "Tests");
	}

	/** The modules that take part when the layer compiles: those it includes, and those that their headers include. */
	FNames ModulesReached(const FLayer& Layer)
	{
		std::vector<fs::path> Open = Layers::FilesOf(Layer);
		std::set<fs::path> Seen;
		FNames Result;
		while (!Open.empty())
		{
			const fs::path File = Open.back();
			Open.pop_back();
			for (const std::string& Include : Layers::IncludesOf(File))
			{
				const auto Offer = Layers::Offers().find(Include);
				if (Offer != Layers::Offers().end() && Seen.insert(Offer->second.File).second)
				{
					Result.insert(Offer->second.Module);
					Open.push_back(Offer->second.File);
				}
			}
		}
		return Result;
	}

	/** Preprocesses one include as a source of the layer. What the compiler says, "" if it has nothing against it. */
	std::string Include(const FLayer& Layer, const std::string& Header)
	{
		std::string Command = "echo '#include \"" + Header + "\"' | LC_ALL=C " VELMORANT_COMPILER " -std=c++20 -M -x c++ -";
		for (const fs::path& Folder : Layer.IncludeFolders)
		{
			Command += " -I'" + Folder.string() + "'";
		}
		FILE* Pipe = popen((Command + " 2>&1 >/dev/null").c_str(), "r");
		std::string Output;
		char Buffer[4096];
		while (Pipe != nullptr && std::fgets(Buffer, sizeof(Buffer), Pipe) != nullptr)
		{
			Output += Buffer;
		}
		const int Status = Pipe != nullptr ? pclose(Pipe) : -1;
		EXPECT_TRUE(WIFEXITED(Status) && (WEXITSTATUS(Status) == 0) == Output.empty()) << Status << Output;
		return Output;
	}
}

using namespace LayersTest;
using testing::HasSubstr;
using testing::IsSubsetOf;

TEST(Layers, NameEachModuleThatTheyInclude)
{
	size_t Checked = 0;
	for (const FLayer& Layer : Layers::All())
	{
		for (const fs::path& File : Layers::FilesOf(Layer))
		{
			for (const std::string& Include : Layers::IncludesOf(File))
			{
				const auto Offer = Layers::Offers().find(Include);
				if (Offer == Layers::Offers().end() || Offer->second.Module == Layer.Name)
				{
					continue;
				}
				const std::string& Module = Offer->second.Module;
				EXPECT_TRUE(Layer.Names(Module)) << Layer.Name << " does not name " << Module << ", whose " << Include << " is included by " << File;
				EXPECT_TRUE(!Layer.IsForUsers(File) || !Layer.Names(Module) || Layer.Public.count(Module) > 0)
					<< Layer.Name << " must name " << Module << " for its users, too: they include " << File;
				++Checked;
			}
		}
	}
	EXPECT_GT(Checked, 1500u) << "the files were not read";
}

TEST(Layers, BurdenUsersOnlyWithWhatHeadersNeed)
{
	for (const FLayer& Layer : Layers::All())
	{
		FNames Needed;
		bool bHasHeaders = false;
		for (const fs::path& File : Layer.Sources)
		{
			bHasHeaders |= Layer.IsForUsers(File);
			for (const std::string& Include : Layer.IsForUsers(File) ? Layers::IncludesOf(File) : std::vector<std::string>())
			{
				const auto Offer = Layers::Offers().find(Include);
				Needed.insert(Offer != Layers::Offers().end() ? Offer->second.Module : "");
			}
		}
		for (const std::string& Module : Layer.Public)
		{
			EXPECT_TRUE(!bHasHeaders || Needed.count(Module) > 0) << Layer.Name << " names " << Module << " for its users, but no header for them includes it";
			EXPECT_EQ(Layer.Private.count(Module), 0u) << Layer.Name << " names " << Module << " as public and as private";
		}
	}
}

TEST(Layers, SeeTheFoldersOfWhatTheyNameAndNoOthers)
{
	for (const FLayer& Layer : Layers::All())
	{
		const FNames Visible = VisibleTo(Layer);
		FNames Seen;
		for (const fs::path& Folder : Layer.IncludeFolders)
		{
			const std::string Owner = OwnerOf(Folder);
			if (!Owner.empty())
			{
				EXPECT_TRUE(Visible.count(Owner) > 0 && MaySee(Layer, Layers::Find(Owner), Folder)) << Layer.Name << " must not see " << Folder;
				Seen.insert(Owner);
			}
		}
		EXPECT_THAT(Visible, IsSubsetOf(Layer.bProgram ? Visible : Seen)) << Layer.Name;
	}
}

TEST(Layers, RefuseToCompileAWrongInclude)
{
	struct FCase
	{
		const char* Target;
		const char* Header;
		bool bRight;
	};
	const FCase Cases[] = {
		{"SlateCore", "Math/Color.h", true},
		{"SlateCore", "Framework/Commands/Commands.h", false}, // of a layer above
		{"UMGEditor", "Misc/AssetCategoryPath.h", false}, // of another one beside
		{"AssetTools", "Editor.h", true},
		{"ContentBrowser", "Editor.h", false}, // AssetTools names it, but not for its users
		{"VelmorantProEditor", "HostWidget.h", false},
		{"VelmorantPro", "HostWidget.h", false},
		{"Runtime", "HostWidget.h", true},
		{"CommandLine", "EditorUtilitySubsystem.h", false}, // the runtime's own affair
		{"CommandLine", "VelmorantUISubsystem.h", false}, // scripts run without the toolkit
		{"Runtime", "Check/CollisionCheck.h", false},
	};
	for (const FCase& Case : Cases)
	{
		const std::string Said = Include(Layers::Find(Case.Target), Case.Header);
		EXPECT_EQ(Said.empty(), Case.bRight) << Case.Target << ", " << Case.Header << ": " << Said;
		EXPECT_TRUE(Case.bRight || std::regex_search(Said, std::regex(std::string(Case.Header) + "(: No such file|' file not found)"))) << Said;
	}
}

TEST(Layers, TheProductNamesNothingThatItDoesNotNeed)
{
	const FLayer& Product = Layers::Find("VelmorantProEditor");
	FNames Named = Product.Public;
	Named.insert(Product.Private.begin(), Product.Private.end());
	EXPECT_THAT(Named, IsSubsetOf(ModulesReached(Product)));
}

TEST(Layers, TheProductKnowsNothingOfTheHost)
{
	for (const fs::path& Source : Layers::Find("VelmorantProEditor").Sources)
	{
		std::stringstream Text;
		Text << std::ifstream(Source).rdbuf();
		for (const char* Forbidden : {"#if", "\"Host", "FEditorHost", "gtest"})
		{
			EXPECT_EQ(Text.str().find(Forbidden), std::string::npos) << Source << " has " << Forbidden;
		}
	}
}
