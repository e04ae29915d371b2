// Copyright Velmorant. All Rights Reserved.

#include "FolderContents.h"

#include <algorithm>
#include <sstream>

namespace FolderContents
{
	/** The bytes of a file, or of what it is compared by. */
	std::string Comparable(const std::string& Path, std::string Bytes)
	{
		if (Path.starts_with("Report/"))
		{
			std::erase_if(Bytes, [](char Letter) { return std::string_view("0123456789.e-+").find(Letter) != std::string_view::npos; });
		}
		return Bytes;
	}

	FContents Look(const FTemporaryFolder& Folder)
	{
		FContents Contents;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder.GetNative()))
		{
			const std::string Path = Entry.path().lexically_relative(Folder.GetNative()).string();
			Contents[Entry.is_directory() ? Path + "/" : Path] = Entry.is_directory() ? std::string() : Comparable(Path, Folder.Read(Path));
		}
		return Contents;
	}

	void Restore(const FTemporaryFolder& Folder, const FContents& Wanted)
	{
		const FContents Found = Look(Folder);
		for (auto Entry = Found.rbegin(); Entry != Found.rend(); ++Entry) // what is in a folder before the folder
		{
			if (!Wanted.contains(Entry->first))
			{
				std::filesystem::remove(Folder.GetNative(Entry->first.substr(0, Entry->first.find_last_not_of('/') + 1)));
			}
		}
		for (const auto& [Path, Bytes] : Wanted)
		{
			const auto Place = Found.find(Path);
			if (Path.ends_with('/'))
			{
				std::filesystem::create_directories(Folder.GetNative(Path));
			}
			else if (Place == Found.end() || Place->second != Bytes)
			{
				Folder.Write(Path, Bytes);
			}
		}
	}

	std::string TellDifference(const FContents& Left, const FContents& Right, const std::vector<std::string>& Ignored)
	{
		std::string Paths;
		for (const auto& [One, Other] : {std::pair(&Left, &Right), std::pair(&Right, &Left)})
		{
			for (const auto& [Path, Bytes] : *One)
			{
				const auto Place = Other->find(Path);
				const bool bDiffers = Place == Other->end() || Place->second != Bytes;
				const bool bIgnored = std::any_of(Ignored.begin(), Ignored.end(), [&Begin = Path](const std::string& Prefix) { return Begin.starts_with(Prefix); });
				Paths += bDiffers && !bIgnored ? Path + " (" + std::to_string(Bytes.size()) + " bytes) " : std::string();
			}
		}
		return Paths;
	}

	/** Temporary files, and the folder in which an installation is prepared. */
	bool IsLeftover(const std::string& Path)
	{
		return Path.starts_with(".velmorant-") || Path.find("/.velmorant-") != std::string::npos;
	}
}

FFaultlessRun::FFaultlessRun(const FTemporaryFolder& Folder, const FTemporaryFolder& Log, const FContents& InBefore)
	: Before(InBefore)
	, After(FolderContents::Look(Folder))
{
	const std::string Root = Folder.GetNative().string() + "/";
	std::istringstream Lines(Log.Read("calls"));
	for (FFileCall Call; Lines >> Call.Name && std::getline(Lines >> std::ws, Call.Path);)
	{
		Call.Path = Call.Path.starts_with(Root) ? Call.Path.substr(Root.size()) : std::string();
		Calls.push_back(Call);
	}
	Learn(Before, After);
	for (int Number = 1; Log.Exists(std::to_string(Number)); ++Number)
	{
		const std::string Entry = Log.Read(std::to_string(Number));
		const size_t End = std::min(Entry.find('\n'), Entry.size());
		const std::string Path = Entry.substr(0, End).substr(Root.size());
		if (!FolderContents::IsLeftover(Path))
		{
			Known[Path].insert(End < Entry.size() ? FolderContents::Comparable(Path, Entry.substr(End + 1)) : FContent());
		}
	}
}

void FFaultlessRun::Learn(const FContents& From, const FContents& To)
{
	for (const auto& [One, Other] : {std::pair(&From, &To), std::pair(&To, &From)})
	{
		for (const auto& [Path, Bytes] : *One)
		{
			Known[Path].insert(Bytes);
			if (!Other->contains(Path))
			{
				Known[Path].insert(FContent());
			}
		}
	}
}

std::string FFaultlessRun::FindForeign(const FContents& Found, bool bLeftovers) const
{
	std::string Foreign;
	for (const auto& [Path, Bytes] : Found)
	{
		const auto Place = Known.find(Path);
		const bool bKnown = Place != Known.end() && Place->second.contains(Bytes);
		if (!bKnown && !(bLeftovers && FolderContents::IsLeftover(Path)))
		{
			Foreign += Path + " holds " + std::to_string(Bytes.size()) + " bytes:\n" + Bytes.substr(0, 2000) + "\n";
		}
	}
	for (const auto& [Path, Contents] : Known)
	{
		Foreign += !Found.contains(Path) && !Contents.contains(FContent()) ? Path + " is gone\n" : std::string();
	}
	return Foreign;
}
