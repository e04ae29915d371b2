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

	/** Removes the file that is being written just now, if any. Does nothing that a signal handler may not do. */
	void RemoveUnfinished();

	/**
	 * @param Existing the file to be replaced, for its mode and owner; null for a new file, which gets NewMode
	 * @param Basis    what the target is to hold still when the new file gets its name (nothing: it may be missing as well); null for
	 *                 whatever it holds
	 * @return 0, or the errno of the step that failed, ESTALE for a target that changed; the target is untouched then and no temporary
	 *         file remains.
	 */
	int Replace(const std::string& Target, std::string_view Bytes, const struct stat* Existing, mode_t NewMode, const std::string* Basis);

	/** Makes names in the folder last that came or went. A disk that fails is reported; a file system that cannot do this has done all it can. */
	void FlushFolder(const std::string& Folder);

	/** The same as Replace() with a file that is complete, or a folder where none stands. */
	int Move(const std::string& From, const std::string& Target, const struct stat* Existing);

	void SetBeforeRename(void (*Hook)(const char* TemporaryFile, const char* TargetFile));
}
