// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <memory>
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

	/** What a file holds, in common with others who look at it: large files are held once. Never null. */
	using FSharedBytes = std::shared_ptr<const std::string>;

	/** Why nothing is found at Path, as half a sentence: Usually, unless the path itself cannot be looked for. */
	FString ExplainMissing(const FString& Path, const FString& Usually);

	/** Regular files of up to 256 MB only: a pipe or device may never end. OutBytes is empty unless the result is Done. */
	ERead Read(const FString& Path, std::string& OutBytes);

	/** The same. Whoever read or wrote the same bytes of the file this way, and still has them, shares them with the caller. */
	ERead ReadShared(const FString& Path, FSharedBytes& OutBytes);

	/** From now on, until the program ends, reading Path gives these bytes, whatever the disk has: what came out of a pipe. */
	void GiveContents(const FString& Path, std::string Bytes);

	/**
	 * Puts Bytes in the place of the file, creating missing folders. Keeps mode and, where permitted, owner of an existing file.
	 * A file that holds these bytes already is left alone, time stamp included. A file without any write permission counts as read-only
	 * even for root; below a project under version control the person is asked about it first.
	 * @return false when refused or failed; the old file is whole then.
	 */
	bool Write(const FString& Path, std::string_view Bytes, EReadOnly ReadOnly = EReadOnly::Refuse);

	enum class EWrite : uint8
	{
		Done,
		Failed, // reported
		Changed // by another program; not reported: callers begin anew with what stands there now
	};

	/**
	 * Puts Bytes in the place of the file if that still holds what they were made of, looked at right before the new file gets its name.
	 * @param Basis what ReadShared() gave; nothing for a file that was missing
	 */
	EWrite WriteOver(const FString& Path, const FSharedBytes& Bytes, const FSharedBytes& Basis, EReadOnly ReadOnly = EReadOnly::Refuse);

	/**
	 * From now on and until the editor goes down, nothing is written, deleted or created outside of these folders, the user's settings and
	 * state folders excepted. Links count as what they lead to. Remedy is told with each refusal.
	 */
	void LimitWrites(const TArray<FString>& Folders, const FString& Remedy);

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
		FSharedBytes Bytes; // empty when deleted
		FSharedBytes Basis; // what the file held when it was read for this; null when nobody said
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

	/** Lays these over the disk, in a new overlay. */
	void RestoreOverlay(const TArray<FPendingWrite>& Writes);

	/** Takes the file away that is just being written under a temporary name. For handlers of signals that end the process. */
	void RemoveUnfinished();

	/** Called when the new file is complete and the old one still in place; tests end the process here. Null switches it off. */
	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile));
}
