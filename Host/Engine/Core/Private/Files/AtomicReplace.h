// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <string_view>
#include <sys/stat.h>

/** One file in the place of another, as one step that a crash or a full disk cannot cut in half. Paths are resolved and full. */
namespace AtomicReplace
{
	/** Whether a name is that of a file that Replace() has not finished: ".velmorant-", process, "-", number, ".tmp". */
	bool IsTemporaryName(std::string_view Name);

	/**
	 * Removes what interrupted writes of this user left in Folder. A file that is still being written stays: its writer holds a lock on it,
	 * which ends with the writer.
	 */
	void RemoveLeftovers(const std::string& Folder);

	/**
	 * @param Existing the file to be replaced, for its mode and owner; null for a new file, which gets NewMode
	 * @return 0, or the errno of the step that failed; the target is untouched then and no temporary file remains.
	 */
	int Replace(const std::string& Target, std::string_view Bytes, const struct stat* Existing, mode_t NewMode);

	/** The same with a file that is complete, or a folder where none stands. */
	int Move(const std::string& From, const std::string& Target, const struct stat* Existing);

	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile));
}
