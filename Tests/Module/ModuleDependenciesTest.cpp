// Copyright Velmorant. All Rights Reserved.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace ModuleDependenciesTest
{
	namespace fs = std::filesystem;

	const fs::path Root = VELMORANT_SOURCE_DIR;
	const fs::path ModuleFolder = Root / "Source/VelmorantProEditor";

	std::string ReadText(const fs::path& File)
	{
		std::ifstream Stream(File);
		std::stringstream Text;
		Text << Stream.rdbuf();
		return Text.str();
	}

	std::vector<std::string> FindAll(const std::string& Text, const std::regex& Pattern)
	{
		std::vector<std::string> Result;
		for (auto Match = std::sregex_iterator(Text.begin(), Text.end(), Pattern); Match != std::sregex_iterator(); ++Match)
		{
			Result.push_back((*Match)[1]);
		}
		return Result;
	}

	std::vector<std::string> IncludesOf(const fs::path& File)
	{
		static const std::regex Include("(?:^|\n)#include \"([^\"]+)\"");
		std::vector<std::string> Result;
		for (const std::string& Path : FindAll(ReadText(File), Include))
		{
			if (Path.find(".generated.h") == std::string::npos)
			{
				Result.push_back(Path);
			}
		}
		return Result;
	}

	std::set<std::string> ModulesNamedInBuildRules()
	{
		static const std::regex Lists("DependencyModuleNames\\.AddRange\\(new\\[\\]\\s*\\{([^}]*)\\}");
		static const std::regex Name("\"(\\w+)\"");
		std::set<std::string> Result;
		for (const std::string& List : FindAll(ReadText(ModuleFolder / "VelmorantProEditor.Build.cs"), Lists))
		{
			const std::vector<std::string> Names = FindAll(List, Name);
			Result.insert(Names.begin(), Names.end());
		}
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
				for (const auto& Entry : fs::recursive_directory_iterator(Public))
				{
					if (Entry.path().extension() == ".h")
					{
						Result[fs::relative(Entry.path(), Public).generic_string()] = {Module.path().filename().string(), Entry.path()};
					}
				}
			}
		}
		return Result;
	}

	bool IsOwnHeader(const std::string& Include)
	{
		return fs::exists(ModuleFolder / "Public" / Include) || fs::exists(ModuleFolder / "Private" / Include);
	}

	std::vector<fs::path> FindModuleSources()
	{
		std::vector<fs::path> Result;
		for (const auto& Entry : fs::recursive_directory_iterator(ModuleFolder))
		{
			if (Entry.path().extension() == ".h" || Entry.path().extension() == ".cpp")
			{
				Result.push_back(Entry.path());
			}
		}
		return Result;
	}
}

using namespace ModuleDependenciesTest;

TEST(ModuleDependencies, EveryIncludeComesFromAModuleThatTheBuildRulesName)
{
	const std::set<std::string> Named = ModulesNamedInBuildRules();
	const auto Headers = FindPublicHeaders();
	ASSERT_FALSE(Named.empty());
	ASSERT_FALSE(Headers.empty());

	for (const fs::path& Source : FindModuleSources())
	{
		for (const std::string& Include : IncludesOf(Source))
		{
			if (IsOwnHeader(Include))
			{
				continue;
			}
			const auto Header = Headers.find(Include);
			ASSERT_NE(Header, Headers.end()) << Source << " includes " << Include << ", which no module offers";
			EXPECT_TRUE(Named.count(Header->second.first)) << Source << " includes " << Include << " of the module " << Header->second.first << ", which the build rules do not name";
		}
	}
}

TEST(ModuleDependencies, EveryModuleThatTheBuildRulesNameIsUsed)
{
	const auto Headers = FindPublicHeaders();
	std::vector<fs::path> Open = FindModuleSources();
	std::set<fs::path> Seen;
	std::set<std::string> Used;
	while (!Open.empty())
	{
		const fs::path File = Open.back();
		Open.pop_back();
		for (const std::string& Include : IncludesOf(File))
		{
			const auto Header = Headers.find(Include);
			if (Header != Headers.end() && Seen.insert(Header->second.second).second)
			{
				Used.insert(Header->second.first);
				Open.push_back(Header->second.second);
			}
		}
	}
	for (const std::string& Module : ModulesNamedInBuildRules())
	{
		EXPECT_TRUE(Used.count(Module)) << Module << " is named, but nothing that the module includes needs it";
	}
}

TEST(ModuleDependencies, TheHostBuildsItAgainstTheSameModules)
{
	static const std::regex Depends("DEPENDS([^)]*)\\)");
	static const std::regex Name("(\\w+)");
	const std::vector<std::string> Lists = FindAll(ReadText(ModuleFolder / "CMakeLists.txt"), Depends);
	ASSERT_EQ(Lists.size(), 1u);
	const std::vector<std::string> Names = FindAll(Lists[0], Name);
	EXPECT_EQ(std::set<std::string>(Names.begin(), Names.end()), ModulesNamedInBuildRules());
}

TEST(ModuleDependencies, TheSourcesKnowNothingOfTheHost)
{
	static const std::regex Forbidden("(#\\s*if|\"Host\\w*\\.h\"|FEditorHost|gtest)");
	for (const fs::path& Source : FindModuleSources())
	{
		EXPECT_FALSE(std::regex_search(ReadText(Source), Forbidden)) << Source;
	}
}
