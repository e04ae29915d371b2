// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

/** Sources of this repository as texts, for tests that compare them with each other. */
namespace SourceText
{
	inline const std::filesystem::path Root = VELMORANT_SOURCE_DIR;

	inline std::string Read(const std::filesystem::path& File)
	{
		std::ifstream Stream(File);
		std::stringstream Text;
		Text << Stream.rdbuf();
		return Text.str();
	}

	/** The first group of each match. */
	inline std::vector<std::string> FindAll(const std::string& Text, const std::regex& Pattern)
	{
		std::vector<std::string> Result;
		for (auto Match = std::sregex_iterator(Text.begin(), Text.end(), Pattern); Match != std::sregex_iterator(); ++Match)
		{
			Result.push_back((*Match)[1]);
		}
		return Result;
	}

	/** Headers and sources of a folder and those below, by path. */
	inline std::vector<std::filesystem::path> FindSources(const std::filesystem::path& Folder)
	{
		std::vector<std::filesystem::path> Result;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
		{
			if (Entry.path().extension() == ".h" || Entry.path().extension() == ".cpp")
			{
				Result.push_back(Entry.path());
			}
		}
		std::sort(Result.begin(), Result.end());
		return Result;
	}

	/** As they are written, those of generated headers left out. */
	inline std::vector<std::string> IncludesOf(const std::filesystem::path& File)
	{
		static const std::regex Include("(?:^|\n)#include \"([^\"]+)\"");
		std::vector<std::string> Result = FindAll(Read(File), Include);
		Result.erase(std::remove_if(Result.begin(), Result.end(), [](const std::string& Path) { return Path.find(".generated.h") != std::string::npos; }), Result.end());
		return Result;
	}
}
