// Copyright Velmorant. All Rights Reserved.

#include "Layers.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace Layers
{
	namespace fs = std::filesystem;

	std::set<std::string> Words(std::istream& Text)
	{
		std::set<std::string> Result;
		for (std::string Word; Text >> Word;)
		{
			EXPECT_TRUE(Result.insert(Word).second) << Word << " is named twice";
		}
		return Result;
	}

	void ReadEntry(FLayer& Layer, const std::string& Key, std::istream& Rest)
	{
		std::string Path;
		if (Key == "public" || Key == "private")
		{
			(Key == "public" ? Layer.Public : Layer.Private) = Words(Rest);
		}
		else if (std::getline(Rest >> std::ws, Path) && Key == "folder")
		{
			Layer.Folder = Path;
		}
		else
		{
			EXPECT_TRUE(Key == "include" || Key == "source") << Key;
			(Key == "include" ? Layer.IncludeFolders : Layer.Sources).push_back(Layer.Folder / Path);
		}
	}

	std::vector<FLayer> ReadAll()
	{
		std::vector<FLayer> Result;
		std::ifstream File(VELMORANT_LAYERS);
		for (std::string Line; std::getline(File, Line);)
		{
			std::istringstream Rest(Line);
			std::string Key;
			Rest >> Key;
			if (Key == "module" || Key == "part" || Key == "program")
			{
				Result.emplace_back();
				Result.back().bProgram = Key == "program";
				Result.back().bFlat = Key == "part";
				Rest >> Result.back().Name;
			}
			else
			{
				ReadEntry(Result.back(), Key, Rest);
			}
		}
		EXPECT_GT(Result.size(), 30u) << VELMORANT_LAYERS;
		return Result;
	}

	std::map<std::string, FOffer> FindOffers()
	{
		std::map<std::string, FOffer> Result;
		for (const FLayer& Layer : All())
		{
			for (const fs::path& File : Layer.Sources)
			{
				if (Layer.IsForUsers(File))
				{
					const fs::path Path = fs::relative(File, Layer.Folder);
					const FOffer Offer = {Layer.Name, File};
					const auto [Same, bNew] = Result.emplace((Layer.bFlat ? Path : fs::relative(Path, *Path.begin())).generic_string(), Offer);
					EXPECT_TRUE(bNew) << Layer.Name << " and " << Same->second.Module << " both offer " << Same->first;
				}
			}
		}
		return Result;
	}

	std::vector<std::string> ReadIncludes(const fs::path& File)
	{
		static const std::string Start = "#include \"";
		std::vector<std::string> Result;
		std::ifstream Text(File);
		EXPECT_TRUE(Text) << File;
		for (std::string Line; std::getline(Text, Line);)
		{
			if (Line.rfind(Start, 0) == 0)
			{
				Line = Line.substr(Start.size(), Line.find('"', Start.size()) - Start.size());
				if (Line.find(".generated.h") == std::string::npos)
				{
					Result.push_back(Line);
				}
			}
		}
		return Result;
	}

	bool IsBelow(const fs::path& File, const fs::path& Folder)
	{
		return File.string().rfind(Folder.string() + "/", 0) == 0;
	}

	bool FLayer::IsForUsers(const fs::path& File) const
	{
		if (bProgram || bFlat)
		{
			return bFlat && File.extension() == ".h";
		}
		return IsBelow(File, Folder / "Public") || IsBelow(File, Folder / "Detail") || IsBelow(File, Folder / "Internal");
	}

	const std::vector<FLayer>& All()
	{
		static const std::vector<FLayer> Result = ReadAll();
		return Result;
	}

	const FLayer& Find(const std::string& Name)
	{
		static const FLayer None;
		for (const FLayer& Layer : All())
		{
			if (Layer.Name == Name)
			{
				return Layer;
			}
		}
		ADD_FAILURE() << "no target is called " << Name;
		return None;
	}

	const std::map<std::string, FOffer>& Offers()
	{
		static const std::map<std::string, FOffer> Result = FindOffers();
		return Result;
	}

	const std::vector<std::string>& IncludesOf(const fs::path& File)
	{
		static std::map<fs::path, std::vector<std::string>> Known;
		const auto Found = Known.find(File);
		return Found != Known.end() ? Found->second : Known.emplace(File, ReadIncludes(File)).first->second;
	}

	/** Where the compiler finds what a source of the layer includes and no module offers; empty for what is not of this project. */
	fs::path FindBeside(const FLayer& Layer, const fs::path& Source, const std::string& Include)
	{
		std::vector<fs::path> Places = {Source.parent_path()};
		Places.insert(Places.end(), Layer.IncludeFolders.begin(), Layer.IncludeFolders.end());
		for (const fs::path& Place : Places)
		{
			if (fs::is_regular_file(Place / Include))
			{
				return (Place / Include).lexically_normal();
			}
		}
		return fs::path();
	}

	std::vector<fs::path> FilesOf(const FLayer& Layer)
	{
		std::vector<fs::path> Result = Layer.Sources;
		std::set<fs::path> Seen(Result.begin(), Result.end());
		for (size_t Index = 0; Layer.bProgram && Index < Result.size(); ++Index)
		{
			for (const std::string& Include : IncludesOf(Result[Index]))
			{
				const fs::path Beside = Offers().count(Include) == 0 ? FindBeside(Layer, Result[Index], Include) : fs::path();
				if (!Beside.empty() && Seen.insert(Beside).second)
				{
					Result.push_back(Beside);
				}
			}
		}
		return Result;
	}
}
