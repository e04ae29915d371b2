// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <string>
#include <string_view>

/**
 * All access of the host to files.
 *
 * Files are replaced whole or not at all: a new file is written beside the old one, flushed to disk and renamed over it. Contents are bytes,
 * held in a std::string. Failures are told to HostProblems where they happen; callers only learn that it failed.
 * Relative paths count from the working directory; symbolic links are followed to their target.
 */
namespace HostFiles
{
	enum class EKind : uint8
	{
		Missing,
		File,
		Directory,
		Other // sockets, devices and the like
	};

	enum class ERead : uint8
	{
		Done,
		Missing, // not reported: callers decide whether the file had to be there
		Failed // there, but it could not be read; reported
	};

	enum class EReadOnly : uint8
	{
		Refuse,
		Override
	};

	EKind GetKind(const FString& Path);
	bool FileExists(const FString& Path);
	bool DirectoryExists(const FString& Path);

	/** The full path without links: where a read or write of Path ends up. */
	FString Resolve(const FString& Path);

	/** Regular files of up to 256 MB only: a pipe or device may never end. OutBytes is empty unless the result is Done. */
	ERead Read(const FString& Path, std::string& OutBytes);

	/**
	 * Puts Bytes in the place of the file, creating missing folders. Keeps mode and, where permitted, owner of an existing file.
	 * A file that holds these bytes already is left alone, time stamp included. A file without any write permission counts as read-only
	 * even for root; below a project under version control the person is asked about it first.
	 * @return false when refused or failed; the old file is whole then.
	 */
	bool Write(const FString& Path, std::string_view Bytes, EReadOnly ReadOnly = EReadOnly::Refuse);

	/** True when the file is gone afterwards, also when it never was there. */
	bool Delete(const FString& Path, EReadOnly ReadOnly = EReadOnly::Refuse);

	/**
	 * Full paths of the files below Directory whose names end with Suffix (case counts; empty takes all), in all folders beneath, sorted by
	 * their bytes. Leftovers of interrupted writes are not files of the project and not listed. A missing folder holds nothing.
	 */
	TArray<FString> FindFiles(const FString& Directory, const FString& Suffix);

	/** The same for files directly in Directory. */
	TArray<FString> FindFilesIn(const FString& Directory, const FString& Suffix);

	/** Full paths of the folders directly in Directory, sorted. */
	TArray<FString> FindDirectories(const FString& Directory);

	/** Whether Write() could replace or create this file. Reports what stands in the way. */
	bool CheckWritable(const FString& Path);

	/** Full paths of the files written since the editor went up, in order of their first write; overlay writes do not count. */
	TArray<FString> GetWrittenFiles();

	/** How often this editor changed the file, on disk or in its overlay: who keeps a copy can tell that it is old. */
	uint32 GetNumChanges(const FString& Path);

	//~ Overlay: writes that only this editor sees.

	/** From now on and until the editor goes down, writes and deletions stay in memory; reads see them. The disk is not touched at all. */
	void BeginOverlay();
	bool HasOverlay();

	struct FPendingWrite
	{
		FString Path; // full path, links resolved
		bool bDeleted = false;
		std::string Bytes; // empty when deleted
	};

	/** What would have been written, sorted by path; a file whose overlay content equals the disk is not listed. */
	TArray<FPendingWrite> GetPendingWrites();

	/**
	 * Keeps other processes of the host from writing in the folder of a file, for as long as it lives: for reading, changing and writing
	 * back. Waits for them. May be nested. With an overlay it does nothing: there is nothing to protect.
	 */
	class FLock
	{
	public:
		explicit FLock(const FString& Path);
		~FLock();
		FLock(const FLock&) = delete;
		FLock& operator=(const FLock&) = delete;

	private:
		std::string Directory; // empty when nothing is held
	};

	/** Called when the new file is complete and the old one still in place; tests end the process here. Null switches it off. */
	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile));
}
