// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostFiles.h"

#include <string>
#include <string_view>
#include <sys/stat.h>

/** Single steps on the disk's files. Paths are full; results named int are 0 or an errno. */
namespace DiskFile
{
	/** Larger files are not read: what they hold is held in memory as a whole, several times. */
	constexpr off_t MaxFileSize = 256 * 1024 * 1024;

	/**
	 * All bytes. EISDIR for a folder, ENOTSUP for a pipe, device or socket, which may never end, EFBIG beyond MaxFileSize. OutBytes is
	 * empty on failure.
	 */
	int Read(const std::string& Path, std::string& OutBytes);

	/** The same. While the file holds just what Known holds (which may be null), OutBytes is that. Null on failure. */
	int ReadShared(const std::string& Path, const HostFiles::FSharedBytes& Known, HostFiles::FSharedBytes& OutBytes);

	/** Whether the file, whose status this is, has exactly these bytes. */
	bool Holds(const std::string& Path, const struct stat& Status, std::string_view Bytes);

	/** Root may write anything; a file nobody has write permission for is meant to stay as it is all the same. */
	bool IsReadOnly(const std::string& Path, const struct stat& Status);

	/** Creates the folder and those above it. */
	int MakeDirectory(const std::string& Path, mode_t Mode);

	/** The mode of files that nothing else is said about: what the user's umask leaves of read and write. */
	mode_t GetNewFileMode();
}
