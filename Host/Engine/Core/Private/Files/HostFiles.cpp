// Copyright Velmorant. All Rights Reserved.

#include "HostFiles.h"

#include "Files/AtomicReplace.h"
#include "Files/DirectoryLock.h"
#include "Files/DiskFile.h"
#include "Files/FileOverlay.h"
#include "Files/FolderListing.h"
#include "Files/NativePath.h"
#include "Files/ReadOnlyFiles.h"
#include "Files/TextCoding.h"
#include "Files/WriteRules.h"
#include "HostProblems.h"
#include "HostState.h"

#include <algorithm>
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
		std::vector<std::string> WriteFolders; // resolved; none for all
		FString LimitsRemedy;
	};

	THostState<FState> State;
	std::unordered_map<std::string, std::string> GivenContents; // by full path

	FFileOverlay* GetOverlay()
	{
		return State.IsSet() ? State.Get().Overlay.get() : nullptr;
	}

	EKind GetKindOf(const std::string& Resolved)
	{
		if (GivenContents.contains(Resolved))
		{
			return EKind::File;
		}
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
		if (IsForOwnerOnly(Path))
		{
			OnDisk.Status.st_mode = (OnDisk.Status.st_mode & S_IFMT) | GetModeOfNewFile(Path);
		}
		return OnDisk.bExists ? &OnDisk.Status : nullptr;
	}

	/** In the locked folder of Path. */
	EWrite WriteDisk(const std::string& Path, std::string_view Bytes, const FSharedBytes& Basis, FOnDisk OnDisk)
	{
		const std::string Folder = NativePath::FolderOf(Path);
		FState& Own = State.Get();
		if (Own.TidiedFolders.insert(Folder).second)
		{
			AtomicReplace::RemoveLeftovers(Folder);
		}
		const int Error = AtomicReplace::Replace(Path, Bytes, GetStatusToKeep(Path, OnDisk), GetModeOfNewFile(Path), Basis.get());
		if (Error == ESTALE)
		{
			return EWrite::Changed;
		}
		if (Error != 0)
		{
			ReportNotWritten(Path, Describe(TEXT("the file cannot be written and is as it was"), Error), TEXT("Check free space and the permissions of its folder."));
			return EWrite::Failed;
		}
		if (Own.WrittenLookup.insert(Path).second)
		{
			Own.Written.push_back(Path);
		}
		return EWrite::Done;
	}

	/** What this process last read or wrote of a file in the shared way; holds nothing itself. Longer than an editor lives: the next one asks. */
	std::weak_ptr<const std::string>& GetKnown(const std::string& Path)
	{
		static std::unordered_map<std::string, std::weak_ptr<const std::string>> Known;
		return Known[Path];
	}

	void CountChange(const std::string& Path)
	{
		++State.Get().NumChanges[Path];
	}

	bool IsBelow(const std::string& Path, const std::string& Folder)
	{
		return Path == Folder || Path.starts_with(Folder == "/" ? Folder : Folder + "/");
	}

	bool IsWithinLimits(const std::string& Path)
	{
		const std::vector<std::string>& Folders = State.Get().WriteFolders;
		return Folders.empty() || IsPrivate(Path) || std::any_of(Folders.begin(), Folders.end(), [&Path](const std::string& Folder) { return IsBelow(Path, Folder); });
	}

	bool CheckLimits(const std::string& Path)
	{
		const bool bWithin = IsWithinLimits(Path);
		if (!bWithin)
		{
			ReportNotWritten(Path, TEXT("the file is not in the project and was left as it is"), *State.Get().LimitsRemedy);
		}
		return bWithin;
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

	/** A result of DiskFile's; failures are reported. */
	ERead Judge(const std::string& Path, int Error)
	{
		if (Error == 0 || Error == ENOENT || Error == ENOTDIR)
		{
			return Error == 0 ? ERead::Done : ERead::Missing;
		}
		ReportNotRead(Path, Error);
		return ERead::Failed;
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

	/** Files that cannot be named here are left out; told where files of that kind are looked for. */
	TArray<FString> ToNames(std::vector<std::string> Paths, bool bTell)
	{
		const auto IsNameless = [bTell](const std::string& Path) {
			const bool bNameless = TextCoding::FindInvalidUtf8(Path) != Path.size();
			if (bNameless && bTell)
			{
				HostProblems::Report(NativePath::ToString(Path), 0, TEXT("the path of this file is no UTF-8, and the file is left out"), TEXT("Rename what is not."));
			}
			return bNameless;
		};
		std::erase_if(Paths, IsNameless);
		return ToStrings(Paths);
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

	FString ExplainMissing(const FString& Path, const FString& Usually)
	{
		const std::string Native = NativePath::FromString(Path);
		if (!Native.starts_with('/') && !NativePath::HasWorkingDirectory())
		{
			return TEXT("the working directory is not there any more, and the path counts from it");
		}
		int32 Lost = INDEX_NONE;
		const bool bLost = NativePath::ToString(NativePath::MakeFull(Path)).FindChar(TextCoding::Replacement, Lost);
		return bLost ? FString(TEXT("the path is no UTF-8, and files with such paths cannot be opened; rename what is not")) : Usually;
	}

	ERead Read(const FString& Path, std::string& OutBytes)
	{
		if (const FFileOverlay* Overlay = GetOverlay())
		{
			if (const FFileOverlay::FEntry* Entry = Overlay->Find(NativePath::Resolve(Path)))
			{
				OutBytes = *Entry->Bytes;
				return Entry->bDeleted ? ERead::Missing : ERead::Done;
			}
		}
		const auto Given = GivenContents.empty() ? GivenContents.end() : GivenContents.find(NativePath::Resolve(Path));
		if (Given != GivenContents.end())
		{
			OutBytes = Given->second;
			return ERead::Done;
		}
		const std::string Full = NativePath::MakeFull(Path);
		return Judge(Full, DiskFile::Read(Full, OutBytes));
	}

	ERead ReadShared(const FString& Path, FSharedBytes& OutBytes)
	{
		const std::string Resolved = NativePath::Resolve(Path);
		if (const FFileOverlay* Overlay = GetOverlay())
		{
			if (const FFileOverlay::FEntry* Entry = Overlay->Find(Resolved))
			{
				OutBytes = Entry->Bytes;
				return Entry->bDeleted ? ERead::Missing : ERead::Done;
			}
		}
		std::weak_ptr<const std::string>& Known = GetKnown(Resolved);
		const ERead Result = Judge(NativePath::MakeFull(Path), DiskFile::ReadShared(Resolved, Known.lock(), OutBytes));
		Known = OutBytes;
		OutBytes = OutBytes != nullptr ? OutBytes : std::make_shared<const std::string>();
		return Result;
	}

	/** What is to be written. */
	struct FContent
	{
		std::string_view Bytes;
		FSharedBytes Shared; // the same, or null
		FSharedBytes Basis; // null: whatever stands there gives way

		FSharedBytes Share() const { return Shared != nullptr ? Shared : std::make_shared<const std::string>(Bytes); }
	};

	/** On disk, in the locked folder. */
	EWrite WriteResolved(const std::string& Resolved, const FContent& Content, EReadOnly ReadOnly)
	{
		FOnDisk OnDisk(Resolved);
		if (OnDisk.bExists && DiskFile::Holds(Resolved, OnDisk.Status, Content.Bytes))
		{
			return EWrite::Done;
		}
		FFileOverlay* Overlay = GetOverlay();
		const bool bAsk = Overlay == nullptr && ReadOnly == EReadOnly::Refuse;
		if ((bAsk && !ReadOnlyFiles::AskToOpen(Resolved, OnDisk)) || !MayReplace(Resolved, OnDisk, ReadOnly))
		{
			return EWrite::Failed;
		}
		if (Overlay != nullptr)
		{
			Overlay->Write(Resolved, Content.Share(), Content.Basis);
		}
		else if (!MakeFolderOrReport(NativePath::FolderOf(Resolved), Resolved))
		{
			return EWrite::Failed;
		}
		const EWrite Result = Overlay != nullptr ? EWrite::Done : WriteDisk(Resolved, Content.Bytes, Content.Basis, OnDisk);
		if (Result == EWrite::Done)
		{
			CountChange(Resolved);
		}
		return Result;
	}

	EWrite WriteContent(const FString& Path, const FContent& Content, EReadOnly ReadOnly)
	{
		const std::string Resolved = NativePath::Resolve(Path);
		if (!CheckLimits(Resolved))
		{
			return EWrite::Failed;
		}
		const FLock Lock(Path);
		FFileOverlay* Overlay = GetOverlay();
		if (Overlay != nullptr && Overlay->Find(Resolved) != nullptr)
		{
			Overlay->Write(Resolved, Content.Share(), nullptr); // the disk had its say the first time
			CountChange(Resolved);
			return EWrite::Done;
		}
		const EWrite Result = WriteResolved(Resolved, Content, ReadOnly);
		if (Result == EWrite::Done && Content.Shared != nullptr && Overlay == nullptr)
		{
			GetKnown(Resolved) = Content.Shared;
		}
		return Result;
	}

	void GiveContents(const FString& Path, std::string Bytes)
	{
		GivenContents[NativePath::Resolve(Path)] = std::move(Bytes);
	}

	bool Write(const FString& Path, std::string_view Bytes, EReadOnly ReadOnly)
	{
		return WriteContent(Path, FContent{Bytes, nullptr, nullptr}, ReadOnly) == EWrite::Done;
	}

	EWrite WriteOver(const FString& Path, const FSharedBytes& Bytes, const FSharedBytes& Basis, EReadOnly ReadOnly)
	{
		return WriteContent(Path, FContent{*Bytes, Bytes, Basis}, ReadOnly);
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
		if (!CheckLimits(Resolved))
		{
			return false;
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
			CountChange(Resolved);
			return true;
		}
		if (unlink(Resolved.c_str()) != 0 && errno != ENOENT)
		{
			ReportNotWritten(Resolved, Describe(TEXT("the file cannot be deleted"), errno), TEXT("Check the permissions of its folder."));
			return false;
		}
		AtomicReplace::FlushFolder(NativePath::FolderOf(Resolved)); // a password that was forgotten is not to come back
		CountChange(Resolved);
		return true;
	}

	TArray<FString> FindFiles(const FString& Directory, const FString& Suffix)
	{
		return ToNames(FolderListing::FindFiles(NativePath::MakeFull(Directory), NativePath::FromString(Suffix), FolderListing::EDepth::All, GetOverlay()), !Suffix.IsEmpty());
	}

	TArray<FString> FindFilesIn(const FString& Directory, const FString& Suffix)
	{
		return ToNames(FolderListing::FindFiles(NativePath::MakeFull(Directory), NativePath::FromString(Suffix), FolderListing::EDepth::ThisFolder, GetOverlay()), !Suffix.IsEmpty());
	}

	TArray<FString> FindDirectories(const FString& Directory)
	{
		return ToStrings(FolderListing::FindDirectories(NativePath::MakeFull(Directory)));
	}

	bool CheckWritable(const FString& Path)
	{
		const std::string Resolved = NativePath::Resolve(Path);
		if (!CheckLimits(Resolved) || !MayReplace(Resolved, FOnDisk(Resolved), EReadOnly::Refuse))
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
				const bool bSame = Entry.bDeleted ? !OnDisk.bExists : OnDisk.bExists && DiskFile::Holds(Path, OnDisk.Status, *Entry.Bytes);
				if (!bSame)
				{
					Result.Add(FPendingWrite{NativePath::ToString(Path), Entry.bDeleted, Entry.Bytes, Entry.Basis});
				}
			}
		}
		return Result;
	}

	void RestoreOverlay(const TArray<FPendingWrite>& Writes)
	{
		BeginOverlay();
		for (const FPendingWrite& Pending : Writes)
		{
			const std::string Path = NativePath::Resolve(Pending.Path);
			GetOverlay()->Write(Path, Pending.Bytes, Pending.Basis);
			if (Pending.bDeleted)
			{
				GetOverlay()->Delete(Path);
			}
		}
	}

	void LimitWrites(const TArray<FString>& Folders, const FString& Remedy)
	{
		FState& Own = State.Get();
		Own.LimitsRemedy = Remedy;
		Own.WriteFolders.clear();
		for (const FString& Folder : Folders)
		{
			Own.WriteFolders.push_back(NativePath::Resolve(Folder));
		}
	}

	void RemoveUnfinished()
	{
		AtomicReplace::RemoveUnfinished();
	}

	FLock::FLock(const FString& Path)
	{
		const std::string Folder = NativePath::FolderOf(NativePath::Resolve(Path));
		if (HasOverlay() || !IsWithinLimits(Folder))
		{
			return;
		}
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
