// Copyright Velmorant. All Rights Reserved.
// Finds what no program needs: `SurfaceCheck LIST EXEMPTIONS`. LIST says, one a line, what is looked at:
//   lower-source FOLDER, own-source FOLDER, generator FOLDER, data FOLDER or FILE, lower-object FILE, own-object FILE
// Status 0: all is needed. 1: something is not. 2: bad usage. 3: a file cannot be read.

#include "Exemptions.h"
#include "Surface.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace Main
{
	using namespace SurfaceCheck;

	std::string ReadText(const std::filesystem::path& Path)
	{
		std::ifstream File(Path, std::ios::binary);
		if (!File)
		{
			throw std::runtime_error(Path.string() + ": cannot be read");
		}
		return {std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>()};
	}

	std::vector<std::filesystem::path> FindFiles(const std::string& Folder, const std::set<std::string>& Extensions)
	{
		std::vector<std::filesystem::path> Result;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
		{
			if (Entry.is_regular_file() && Extensions.contains(Entry.path().extension().string()))
			{
				Result.push_back(Entry.path());
			}
		}
		std::sort(Result.begin(), Result.end());
		return Result;
	}

	void AddSources(const std::string& Folder, std::vector<FSource>& Sources)
	{
		for (const std::filesystem::path& Path : FindFiles(Folder, {".h", ".cpp"}))
		{
			Sources.push_back(ReadSource(Path.string(), ReadText(Path)));
		}
	}

	void AddWords(const std::string& Folder, std::set<std::string>& Words)
	{
		const std::filesystem::path Place = Folder;
		for (const std::filesystem::path& Path : is_directory(Place) ? FindFiles(Folder, {".json", ".ini", ".velscript"}) : std::vector{Place})
		{
			std::string Word;
			for (const char C : ReadText(Path) + " ")
			{
				if (std::isalnum(static_cast<unsigned char>(C)) || C == '_')
				{
					Word += C;
				}
				else if (!Word.empty())
				{
					Words.insert(Word);
					Word.clear();
				}
			}
		}
	}

	void AddEntry(const std::string& Kind, const std::string& Path, FSurfaceInput& Input)
	{
		if (Kind == "lower-source")
		{
			AddSources(Path, Input.LowerSources);
		}
		else if (Kind == "own-source")
		{
			AddSources(Path, Input.OwnSources);
		}
		else if (Kind == "generator")
		{
			std::vector<FSource> Sources;
			AddSources(Path, Sources);
			for (const FSource& Source : Sources)
			{
				Input.GeneratedIncludes.insert(Source.Includes.begin(), Source.Includes.end());
			}
		}
		else if (Kind == "data")
		{
			AddWords(Path, Input.DataWords);
		}
		else if (Kind == "lower-object" || Kind == "own-object")
		{
			(Kind == "own-object" ? Input.OwnObjects : Input.LowerObjects).push_back(Path);
		}
		else
		{
			throw std::runtime_error("'" + Kind + "' is nothing that the list may hold");
		}
	}

	int Run(const std::string& ListPath, const std::string& ExemptionsPath)
	{
		FSurfaceInput Input;
		std::istringstream Lines(ReadText(ListPath));
		std::string Kind;
		std::string Path;
		while (Lines >> Kind && std::getline(Lines >> std::ws, Path))
		{
			AddEntry(Kind, Path, Input);
		}
		const FExemptions Exemptions(ExemptionsPath, ReadText(ExemptionsPath));
		const std::vector<FFinding> Findings = FindUnneeded(Input);
		const std::vector<std::string> Problems = Exemptions.GetProblems(Findings);
		int LineCount = 0;
		for (const FFinding& Finding : Findings)
		{
			LineCount += Finding.CountLines();
		}
		for (const std::string& Problem : Problems)
		{
			std::cout << Problem << '\n';
		}
		std::cout << Findings.size() << " functions and headers that nobody needs, " << LineCount << " lines; " << Problems.size() << " problems\n";
		return Problems.empty() ? 0 : 1;
	}
}

int main(int ArgumentCount, char** Arguments)
{
	if (ArgumentCount != 3)
	{
		std::cerr << "usage: SurfaceCheck LIST EXEMPTIONS\n";
		return 2;
	}
	try
	{
		return Main::Run(Arguments[1], Arguments[2]);
	}
	catch (const std::exception& Problem)
	{
		std::cerr << "SurfaceCheck: " << Problem.what() << '\n';
		return 3;
	}
}
