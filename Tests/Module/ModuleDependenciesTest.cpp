// Copyright Velmorant. All Rights Reserved.

#include "SourceText.h"

#include <gmock/gmock.h>
#include <map>
#include <set>

namespace ModuleDependenciesTest
{
	namespace fs = std::filesystem;
	using SourceText::FindAll;
	using SourceText::IncludesOf;
	using SourceText::Root;

	const fs::path ModuleFolder = Root / "Source/VelmorantProEditor";

	/** The modules that the build rules name, once each. */
	std::set<std::string> NamedModules(const std::string& Kind)
	{
		static const std::regex Name("(\\w+)");
		const fs::path Rules = ModuleFolder / "VelmorantProEditor.Build.cs";
		const std::vector<std::string> Lists = FindAll(SourceText::Read(Rules), std::regex(Kind + "DependencyModuleNames\\.AddRange\\(new\\[\\]\\s*\\{([^}]*)\\}"));
		EXPECT_EQ(Lists.size(), 1u) << Rules << ": " << Kind;
		const std::vector<std::string> Names = Lists.empty() ? Lists : FindAll(Lists[0], Name);
		const std::set<std::string> Result(Names.begin(), Names.end());
		EXPECT_EQ(Result.size(), Names.size()) << Rules << " names a module twice";
		return Result;
	}

	/** Every public header of the engine surface and the companions: include path to (module, file). */
	std::map<std::string, std::pair<std::string, fs::path>> FindPublicHeaders()
	{
		std::map<std::string, std::pair<std::string, fs::path>> Result;
		for (const fs::path& Folder : {Root / "Host/Engine", Root / "Companions"})
		{
			for (const auto& Module : fs::directory_iterator(Folder))
			{
				const fs::path Public = Module.path() / "Public";
				if (!fs::is_directory(Public))
				{
					continue;
				}
				for (const fs::path& Header : SourceText::FindSources(Public))
				{
					Result[fs::relative(Header, Public).generic_string()] = {Module.path().filename().string(), Header};
				}
			}
		}
		return Result;
	}

	bool IsOwnHeader(const std::string& Include)
	{
		return fs::exists(ModuleFolder / "Public" / Include) || fs::exists(ModuleFolder / "Private" / Include);
	}

	/** The modules whose headers a folder's files include themselves. */
	std::set<std::string> ModulesIncludedBy(const char* Folder)
	{
		const auto Headers = FindPublicHeaders();
		std::set<std::string> Result;
		for (const fs::path& Source : SourceText::FindSources(ModuleFolder / Folder))
		{
			for (const std::string& Include : IncludesOf(Source))
			{
				const auto Header = Headers.find(Include);
				EXPECT_TRUE(IsOwnHeader(Include) || Header != Headers.end()) << Source << " includes " << Include << ", which no module offers";
				if (!IsOwnHeader(Include) && Header != Headers.end())
				{
					Result.insert(Header->second.first);
				}
			}
		}
		return Result;
	}

	/** The modules that take part in compiling the module: those it includes, and those that their headers include. */
	std::set<std::string> ModulesReached()
	{
		const auto Headers = FindPublicHeaders();
		std::vector<fs::path> Open = SourceText::FindSources(ModuleFolder);
		std::set<fs::path> Seen;
		std::set<std::string> Result;
		while (!Open.empty())
		{
			const fs::path File = Open.back();
			Open.pop_back();
			for (const std::string& Include : IncludesOf(File))
			{
				const auto Header = Headers.find(Include);
				if (Header != Headers.end() && Seen.insert(Header->second.second).second)
				{
					Result.insert(Header->second.first);
					Open.push_back(Header->second.second);
				}
			}
		}
		return Result;
	}
}

using namespace ModuleDependenciesTest;
using testing::IsSubsetOf;

TEST(ModuleDependencies, ArePublicWherePublicHeadersIncludeThemAndNowhereElse)
{
	// A module that derives from the panels must be able to include their headers, and must not be made to depend on more.
	EXPECT_EQ(NamedModules("Public"), ModulesIncludedBy("Public"));
}

TEST(ModuleDependencies, ArePrivateWhereOnlySourcesNeedThem)
{
	std::set<std::string> Named = NamedModules("Public");
	for (const std::string& Module : NamedModules("Private"))
	{
		EXPECT_TRUE(Named.insert(Module).second) << Module << " is both public and private";
	}
	EXPECT_THAT(ModulesIncludedBy("Private"), IsSubsetOf(Named)) << "the build rules do not name all that is included";
	EXPECT_THAT(Named, IsSubsetOf(ModulesReached())) << "the build rules name what nothing that is included needs";
}

TEST(ModuleDependencies, TheSourcesKnowNothingOfTheHost)
{
	static const std::regex Forbidden("(#\\s*if|\"Host\\w*\\.h\"|FEditorHost|gtest)");
	for (const fs::path& Source : SourceText::FindSources(ModuleFolder))
	{
		EXPECT_FALSE(std::regex_search(SourceText::Read(Source), Forbidden)) << Source;
	}
}
