// Copyright Velmorant. All Rights Reserved.

#include "FileWriter.h"

#include "Diagnostics.h"
#include "TextTools.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace HeaderTool
{
	namespace FileWriter
	{
		bool HasText(const std::filesystem::path& Path, const std::string& Text)
		{
			std::error_code Ignored;
			if (!std::filesystem::is_regular_file(Path, Ignored))
			{
				return false;
			}
			std::ifstream Stream(Path, std::ios::binary);
			std::ostringstream Present;
			Present << Stream.rdbuf();
			return Stream && Present.str() == Text;
		}

		bool Replace(const std::filesystem::path& Path, const std::string& Text, FDiagnostics& Diagnostics)
		{
			std::filesystem::path Temporary = Path;
			Temporary += ".new";
			errno = 0;
			{
				std::ofstream Stream(Temporary, std::ios::binary | std::ios::trunc);
				Stream << Text;
				Stream.close();
				if (!Stream)
				{
					Diagnostics.Error(Temporary.string(), {}, std::string("cannot be written (") + std::strerror(errno) + "); check the folder and its permissions.");
					std::error_code Ignored;
					std::filesystem::remove(Temporary, Ignored);
					return false;
				}
			}
			std::error_code Code;
			std::filesystem::rename(Temporary, Path, Code);
			if (Code)
			{
				Diagnostics.Error(Path.string(), {}, "cannot be replaced (" + Code.message() + "); check the folder and its permissions.");
				std::filesystem::remove(Temporary, Code);
				return false;
			}
			return true;
		}

		/** Generated files in Folder, except those in Kept. */
		void RemoveGenerated(const std::string& Folder, const std::set<std::string>& Kept, FDiagnostics& Diagnostics)
		{
			std::error_code Code;
			std::vector<std::filesystem::path> Stale;
			for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Code))
			{
				const std::string Name = Entry.path().filename().string();
				if ((EndsWith(Name, ".generated.h") || EndsWith(Name, ".gen.cpp")) && !Kept.count(Name))
				{
					Stale.push_back(Entry.path());
				}
			}
			std::sort(Stale.begin(), Stale.end());
			for (const std::filesystem::path& Path : Stale)
			{
				if (!std::filesystem::remove(Path, Code) && Code)
				{
					Diagnostics.Error(Path.string(), {}, "is out of date and cannot be removed (" + Code.message() + "); remove it.");
				}
			}
		}
	}

	bool WriteOutputs(const std::string& Folder, const std::vector<FOutputFile>& Files, FDiagnostics& Diagnostics)
	{
		std::error_code Code;
		std::filesystem::create_directories(Folder, Code);
		if (!std::filesystem::is_directory(Folder))
		{
			Diagnostics.Error(Folder, {}, "the output folder cannot be made (" + (Code ? Code.message() : std::string("something else is there")) + "); name another one.");
			return false;
		}
		std::set<std::string> Kept;
		for (const FOutputFile& File : Files)
		{
			Kept.insert(File.Name);
			const std::filesystem::path Path = std::filesystem::path(Folder) / File.Name;
			if (!FileWriter::HasText(Path, File.Text) && !FileWriter::Replace(Path, File.Text, Diagnostics))
			{
				return false;
			}
		}
		FileWriter::RemoveGenerated(Folder, Kept, Diagnostics);
		return !Diagnostics.HasErrors();
	}

	void RemoveOutputs(const std::string& Folder, FDiagnostics& Diagnostics)
	{
		FileWriter::RemoveGenerated(Folder, {}, Diagnostics);
	}
}
