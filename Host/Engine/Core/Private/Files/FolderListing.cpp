// Copyright Velmorant. All Rights Reserved.

#include "Files/FolderListing.h"

#include "Files/AtomicReplace.h"
#include "Files/FileOverlay.h"
#include "Files/NativePath.h"
#include "Files/WriteRules.h"
#include "HostProblems.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <sys/stat.h>
#include <utility>

namespace FolderListing
{
	using FFolderId = std::pair<dev_t, ino_t>;

	struct FEntry
	{
		std::string Path;
		bool bFolder = false;
	};

	bool IsFolder(const std::string& Path, const dirent& Entry)
	{
		if (Entry.d_type != DT_LNK && Entry.d_type != DT_UNKNOWN)
		{
			return Entry.d_type == DT_DIR;
		}
		struct stat Status;
		return stat(Path.c_str(), &Status) == 0 && S_ISDIR(Status.st_mode);
	}

	/** Files of a folder that cannot be read would count as missing. */
	void ReportNotRead(const std::string& Folder, int Error)
	{
		HostProblems::Report(NativePath::ToString(Folder), 0, WriteRules::Describe(TEXT("the folder cannot be read"), Error), TEXT("Check its permissions."));
	}

	std::vector<FEntry> ReadFolder(const std::string& Folder)
	{
		std::vector<FEntry> Result;
		DIR* Directory = opendir(Folder.c_str());
		if (Directory == nullptr)
		{
			if (errno != ENOENT && errno != ENOTDIR)
			{
				ReportNotRead(Folder, errno);
			}
			return Result;
		}
		while (const dirent* Entry = readdir(Directory))
		{
			const std::string_view Name = Entry->d_name;
			if (Name != "." && Name != ".." && !AtomicReplace::IsTemporaryName(Name))
			{
				std::string Path = Folder + "/" + Entry->d_name;
				const bool bFolder = IsFolder(Path, *Entry);
				Result.push_back(FEntry{std::move(Path), bFolder});
			}
		}
		closedir(Directory);
		return Result;
	}

	/** Above holds the folders that lead here: a link back to one of them would never end. */
	void CollectFiles(const std::string& Folder, const std::string& Suffix, EDepth Depth, std::vector<FFolderId>& Above, std::vector<std::string>& OutFiles)
	{
		struct stat Status;
		if (stat(Folder.c_str(), &Status) != 0)
		{
			return;
		}
		const FFolderId Id(Status.st_dev, Status.st_ino);
		if (std::find(Above.begin(), Above.end(), Id) != Above.end())
		{
			return;
		}
		Above.push_back(Id);
		for (FEntry& Entry : ReadFolder(Folder))
		{
			if (Entry.bFolder && Depth == EDepth::All)
			{
				CollectFiles(Entry.Path, Suffix, Depth, Above, OutFiles);
			}
			else if (!Entry.bFolder && Entry.Path.ends_with(Suffix))
			{
				OutFiles.push_back(std::move(Entry.Path));
			}
		}
		Above.pop_back();
	}

	/** The overlay knows files by their resolved paths; answers are to begin as the question did. */
	void ApplyOverlay(const std::string& Folder, const std::string& Suffix, EDepth Depth, const FFileOverlay& Overlay, std::vector<std::string>& Files)
	{
		char Buffer[PATH_MAX];
		const std::string Real = realpath(Folder.c_str(), Buffer) != nullptr ? std::string(Buffer) : Folder;
		const std::string Prefix = Real + "/";
		const auto& Entries = Overlay.GetEntries();
		for (auto Entry = Entries.lower_bound(Prefix); Entry != Entries.end() && Entry->first.starts_with(Prefix); ++Entry)
		{
			std::string Path = Folder + Entry->first.substr(Real.size());
			const auto Found = std::find(Files.begin(), Files.end(), Path);
			if (Entry->second.bDeleted)
			{
				if (Found != Files.end())
				{
					Files.erase(Found);
				}
				continue;
			}
			const bool bDeepEnough = Depth == EDepth::All || Entry->first.find('/', Prefix.size()) == std::string::npos;
			if (bDeepEnough && Found == Files.end() && Path.ends_with(Suffix))
			{
				Files.push_back(std::move(Path));
			}
		}
	}

	std::vector<std::string> FindFiles(const std::string& Folder, const std::string& Suffix, EDepth Depth, const FFileOverlay* Overlay)
	{
		std::vector<std::string> Files;
		std::vector<FFolderId> Above;
		CollectFiles(Folder, Suffix, Depth, Above, Files);
		if (Overlay != nullptr)
		{
			ApplyOverlay(Folder, Suffix, Depth, *Overlay, Files);
		}
		std::sort(Files.begin(), Files.end());
		return Files;
	}

	std::vector<std::string> FindDirectories(const std::string& Folder)
	{
		std::vector<std::string> Folders;
		for (FEntry& Entry : ReadFolder(Folder))
		{
			if (Entry.bFolder)
			{
				Folders.push_back(std::move(Entry.Path));
			}
		}
		std::sort(Folders.begin(), Folders.end());
		return Folders;
	}
}
