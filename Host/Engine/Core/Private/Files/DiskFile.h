// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>
#include <sys/stat.h>

/** Single steps on the disk's files. Paths are full; results named int are 0 or an errno. */
namespace DiskFile
{
	/** All bytes, also of pipes and devices. OutBytes is empty on failure. */
	int Read(const std::string& Path, std::string& OutBytes);

	/** Whether the file, whose status this is, has exactly these bytes. */
	bool Holds(const std::string& Path, const struct stat& Status, std::string_view Bytes);

	/** Root may write anything; a file nobody has write permission for is meant to stay as it is all the same. */
	bool IsReadOnly(const std::string& Path, const struct stat& Status);

	/** Creates the folder and those above it. */
	int MakeDirectory(const std::string& Path, mode_t Mode);

	/** The mode of files that nothing else is said about: what the user's umask leaves of read and write. */
	mode_t GetNewFileMode();
}
