// Copyright Velmorant. All Rights Reserved.

#include "HostFiles.h"

#include "Files/AtomicReplace.h"
#include "Files/DirectoryLock.h"
#include "Files/DiskFile.h"
#include "Files/FileOverlay.h"
#include "Files/FolderListing.h"
#include "Files/NativePath.h"
#include "Files/ReadOnlyFiles.h"
#include "Files/WriteRules.h"
#include "HostProblems.h"
#include "HostState.h"

#include <cerrno>
#include <memory>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace HostFiles
{
	using namespace WriteRules;

	struct FState
	{
		std::unique_ptr<FFileOverlay> Overlay;
		std::vector<std::string> Written; // in order of the first write
		std::set<std::string> WrittenLookup; // the same paths
		std::set<std::string> TidiedFolders; // leftovers are looked for once in each
		std::unordered_map<std::string, uint32> NumChanges; // by resolved path
	};

	THostState<FState> State;

	FFileOverlay* GetOverlay()
	{
		return State.IsSet() ? State.Get().Overlay.get() : nullptr;
	}

	EKind GetKindOf(const std::string& Resolved)
	{
		if (const FFileOverlay* Overlay = GetOverlay())
		{
			if (const FFileOverlay::FEntry* Entry = Overlay->Find(Resolved))
			{
				return Entry->bDeleted ? EKind::Missing : EKind::File;
			}
			if (Overlay->HasDirectory(Resolved))
			{
				return EKind::Directory;
			}
		}
		const FOnDisk OnDisk(Resolved);
		if (!OnDisk.bExists || S_ISREG(OnDisk.Status.st_mode))
		{
			return OnDisk.bExists ? EKind::File : EKind::Missing;
		}
		return S_ISDIR(OnDisk.Status.st_mode) ? EKind::Directory : EKind::Other;
	}

	/**
	 * What is the user's own stays theirs alone, whoever else could read it before; other files keep their mode.
	 *
	 * @return null for a file that is new
	 */
	const struct stat* GetStatusToKeep(const std::string& Path, FOnDisk& OnDisk)
	{
		if (IsPrivate(Path))
		{
			OnDisk.Status.st_mode = (OnDisk.Status.st_mode & S_IFMT) | GetModeOfNewFile(Path);
		}
		return OnDisk.bExists ? &OnDisk.Status : nullptr;
	}

	/** In the locked folder of Path. */
	bool WriteDisk(const std::string& Path, std::string_view Bytes, FOnDisk OnDisk)
	{
		const std::string Folder = NativePath::FolderOf(Path);
		FState& Own = State.Get();
		if (Own.TidiedFolders.insert(Folder).second)
		{
			AtomicReplace::RemoveLeftovers(Folder);
		}
		const int Error = AtomicReplace::Replace(Path, Bytes, GetStatusToKeep(Path, OnDisk), GetModeOfNewFile(Path));
		if (Error != 0)
		{
			ReportNotWritten(Path, Describe(TEXT("the file cannot be written and is as it was"), Error), TEXT("Check free space and the permissions of its folder."));
			return false;
		}
		if (Own.WrittenLookup.insert(Path).second)
		{
			Own.Written.push_back(Path);
		}
		return true;
	}

	bool CountChange(const std::string& Path)
	{
		++State.Get().NumChanges[Path];
		return true;
	}

	void ReportNotRead(const std::string& Path, int Error)
	{
		const auto Tell = [File = NativePath::ToString(Path)](const FString& Message, const TCHAR* Remedy) { HostProblems::Report(File, 0, Message, Remedy); };
		switch (Error)
		{
			case EISDIR:
				Tell(TEXT("a folder stands where a file is to be read"), TEXT("Move the folder away."));
				break;
			case ENOTSUP:
				Tell(TEXT("this is no ordinary file, and nothing is read from it"), TEXT("Put what it gives into a file and name that."));
				break;
			case EFBIG:
				Tell(FString::Printf(TEXT("the file is larger than %d MB and is not read"), static_cast<int32>(DiskFile::MaxFileSize / (1024 * 1024))), TEXT("Make it smaller, or move it away."));
				break;
			default:
				Tell(Describe(TEXT("the file cannot be read"), Error), TEXT("Check its permissions."));
		}
	}

	TArray<FString> ToStrings(const std::vector<std::string>& Paths)
	{
		TArray<FString> Result;
		Result.Reserve(static_cast<int32>(Paths.size()));
		for (const std::string& Path : Paths)
		{
			Result.Add(NativePath::ToString(Path));
		}
		return Result;
	}

	EKind GetKind(const FString& Path)
	{
		return GetKindOf(NativePath::Resolve(Path));
	}

	bool FileExists(const FString& Path)
	{
		return GetKind(Path) == EKind::File;
	}

	bool DirectoryExists(const FString& Path)
	{
		return GetKind(Path) == EKind::Directory;
	}

	FString Resolve(const FString& Path)
	{
		return NativePath::ToString(NativePath::Resolve(Path));
	}

	ERead Read(const FString& Path, std::string& OutBytes)
	{
		if (const FFileOverlay* Overlay = GetOverlay())
		{
			if (const FFileOverlay::FEntry* Entry = Overlay->Find(NativePath::Resolve(Path)))
			{
				OutBytes = Entry->Bytes;
				return Entry->bDeleted ? ERead::Missing : ERead::Done;
			}
		}
		const std::string Full = NativePath::MakeFull(Path);
		const int Error = DiskFile::Read(Full, OutBytes);
		if (Error == 0 || Error == ENOENT || Error == ENOTDIR)
		{
			return Error == 0 ? ERead::Done : ERead::Missing;
		}
		ReportNotRead(Full, Error);
		return ERead::Failed;
	}

	bool Write(const FString& Path, std::string_view Bytes, EReadOnly ReadOnly)
	{
		const FLock Lock(Path);
		const std::string Resolved = NativePath::Resolve(Path);
		FFileOverlay* Overlay = GetOverlay();
		if (Overlay != nullptr && Overlay->Find(Resolved) != nullptr)
		{
			Overlay->Write(Resolved, Bytes); // the disk had its say the first time
			return CountChange(Resolved);
		}
		FOnDisk OnDisk(Resolved);
		if (OnDisk.bExists && DiskFile::Holds(Resolved, OnDisk.Status, Bytes))
		{
			return true;
		}
		const bool bAsk = Overlay == nullptr && ReadOnly == EReadOnly::Refuse;
		if (bAsk && !ReadOnlyFiles::AskToOpen(Resolved, OnDisk))
		{
			return false;
		}
		if (!MayReplace(Resolved, OnDisk, ReadOnly))
		{
			return false;
		}
		if (Overlay != nullptr)
		{
			Overlay->Write(Resolved, Bytes);
			return CountChange(Resolved);
		}
		return MakeFolderOrReport(NativePath::FolderOf(Resolved), Resolved) && WriteDisk(Resolved, Bytes, OnDisk) && CountChange(Resolved);
	}

	bool Delete(const FString& Path, EReadOnly ReadOnly)
	{
		const std::string Resolved = NativePath::Resolve(Path);
		FFileOverlay* Overlay = GetOverlay();
		if (Overlay == nullptr && IsPrivate(Resolved))
		{
			AtomicReplace::RemoveLeftovers(NativePath::FolderOf(Resolved)); // they may hold what is to be gone
		}
		if (GetKindOf(Resolved) == EKind::Missing)
		{
			return true;
		}
		const FLock Lock(Path);
		const bool bOnlyInOverlay = Overlay != nullptr && Overlay->Find(Resolved) != nullptr;
		if (!bOnlyInOverlay && !MayReplace(Resolved, FOnDisk(Resolved), ReadOnly))
		{
			return false;
		}
		if (Overlay != nullptr)
		{
			Overlay->Delete(Resolved);
			return CountChange(Resolved);
		}
		if (unlink(Resolved.c_str()) != 0 && errno != ENOENT)
		{
			ReportNotWritten(Resolved, Describe(TEXT("the file cannot be deleted"), errno), TEXT("Check the permissions of its folder."));
			return false;
		}
		return CountChange(Resolved);
	}

	TArray<FString> FindFiles(const FString& Directory, const FString& Suffix)
	{
		return ToStrings(FolderListing::FindFiles(NativePath::MakeFull(Directory), NativePath::FromString(Suffix), FolderListing::EDepth::All, GetOverlay()));
	}

	TArray<FString> FindFilesIn(const FString& Directory, const FString& Suffix)
	{
		return ToStrings(FolderListing::FindFiles(NativePath::MakeFull(Directory), NativePath::FromString(Suffix), FolderListing::EDepth::ThisFolder, GetOverlay()));
	}

	TArray<FString> FindDirectories(const FString& Directory)
	{
		return ToStrings(FolderListing::FindDirectories(NativePath::MakeFull(Directory)));
	}

	bool CheckWritable(const FString& Path)
	{
		const std::string Resolved = NativePath::Resolve(Path);
		if (!MayReplace(Resolved, FOnDisk(Resolved), EReadOnly::Refuse))
		{
			return false;
		}
		std::string Folder = NativePath::FolderOf(Resolved);
		while (!FOnDisk(Folder).bExists) // the root does
		{
			Folder = NativePath::FolderOf(Folder);
		}
		const FOnDisk Nearest(Folder);
		if (!S_ISDIR(Nearest.Status.st_mode) || access(Folder.c_str(), W_OK | X_OK) != 0)
		{
			ReportNotWritten(Resolved, TEXT("the file cannot be written, its folder does not permit it"), TEXT("Check the permissions of the folder."));
			return false;
		}
		return true;
	}

	TArray<FString> GetWrittenFiles()
	{
		return ToStrings(State.Get().Written);
	}

	uint32 GetNumChanges(const FString& Path)
	{
		const auto Found = State.Get().NumChanges.find(NativePath::Resolve(Path));
		return Found != State.Get().NumChanges.end() ? Found->second : 0;
	}

	void BeginOverlay()
	{
		if (!HasOverlay())
		{
			State.Get().Overlay = std::make_unique<FFileOverlay>();
		}
	}

	bool HasOverlay()
	{
		return GetOverlay() != nullptr;
	}

	TArray<FPendingWrite> GetPendingWrites()
	{
		TArray<FPendingWrite> Result;
		if (const FFileOverlay* Overlay = GetOverlay())
		{
			for (const auto& [Path, Entry] : Overlay->GetEntries())
			{
				const FOnDisk OnDisk(Path);
				const bool bSame = Entry.bDeleted ? !OnDisk.bExists : OnDisk.bExists && DiskFile::Holds(Path, OnDisk.Status, Entry.Bytes);
				if (!bSame)
				{
					Result.Add(FPendingWrite{NativePath::ToString(Path), Entry.bDeleted, Entry.Bytes});
				}
			}
		}
		return Result;
	}

	FLock::FLock(const FString& Path)
	{
		if (HasOverlay())
		{
			return;
		}
		const std::string Folder = NativePath::FolderOf(NativePath::Resolve(Path));
		// A missing folder is about to be written in; that write reports it when the folder cannot be created.
		if (MakeFolder(Folder) == 0 && DirectoryLock::Acquire(Folder))
		{
			Directory = Folder;
		}
	}

	FLock::~FLock()
	{
		if (!Directory.empty())
		{
			DirectoryLock::Release(Directory);
		}
	}

	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile))
	{
		AtomicReplace::SetBeforeRename(Hook);
	}
}
