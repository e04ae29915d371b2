// Copyright Velmorant. All Rights Reserved.

#include "Manifest.h"

#include "Diagnostics.h"
#include "TextTools.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace HeaderTool
{
	namespace Manifest
	{
		constexpr std::uintmax_t MaxFileSize = 256 * 1024 * 1024; // bytes; no source is nearly as large

		/** The first word of Text, which keeps the rest. */
		std::string TakeWord(std::string& Text)
		{
			const size_t End = Text.find_first_of(" \t");
			const std::string Word = Text.substr(0, End);
			Text = End == std::string::npos ? "" : Trim(Text.substr(End));
			return Word;
		}
	}

	bool ReadFile(const std::string& Path, std::string& OutText, FDiagnostics& Diagnostics)
	{
		std::error_code Code;
		if (std::filesystem::is_directory(Path, Code))
		{
			Diagnostics.Error(Path, {}, "this is a folder; name a file.");
			return false;
		}
		const std::filesystem::file_status Status = std::filesystem::status(Path, Code);
		if (std::filesystem::exists(Status) && !std::filesystem::is_regular_file(Status))
		{
			Diagnostics.Error(Path, {}, "this is no ordinary file, and nothing is read from it; name a file.");
			return false;
		}
		if (std::filesystem::is_regular_file(Status) && std::filesystem::file_size(Path, Code) > Manifest::MaxFileSize)
		{
			Diagnostics.Error(Path, {}, "the file is larger than 256 MB and is not read; name another one.");
			return false;
		}
		errno = 0;
		std::ifstream Stream(Path, std::ios::binary);
		std::ostringstream Text;
		if (Stream && Stream.peek() != std::ifstream::traits_type::eof())
		{
			Text << Stream.rdbuf();
		}
		if (!Stream.is_open() || Stream.bad() || Text.bad())
		{
			Diagnostics.Error(Path, {}, std::string("cannot be read (") + std::strerror(errno) + "); check the path and its permissions.");
			return false;
		}
		OutText = Text.str();
		return true;
	}

	bool ReadManifest(const std::string& Path, FManifest& OutManifest, FDiagnostics& Diagnostics)
	{
		std::string Text;
		if (!ReadFile(Path, Text, Diagnostics))
		{
			return false;
		}
		std::istringstream Stream(Text);
		int Number = 0;
		bool bGood = true;
		for (std::string Line; std::getline(Stream, Line);)
		{
			++Number;
			std::string Rest = Trim(Line);
			if (Rest.empty())
			{
				continue;
			}
			const std::string Keyword = Manifest::TakeWord(Rest);
			if (Keyword == "module" && !Rest.empty())
			{
				OutManifest.Module = Rest;
				continue;
			}
			const std::string IncludePath = Keyword == "header" ? Manifest::TakeWord(Rest) : "";
			if (Rest.empty() || IncludePath.empty())
			{
				Diagnostics.Error(Path, {Number}, "expected 'module NAME' or 'header INCLUDE_PATH FILE', but found '" + Trim(Line) + "'.");
				bGood = false;
				continue;
			}
			OutManifest.Headers.push_back({IncludePath, Rest});
		}
		if (bGood && OutManifest.Module.empty())
		{
			Diagnostics.Error(Path, {}, "names no module; add a line 'module NAME'.");
			bGood = false;
		}
		return bGood;
	}
}
