// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>

/**
 * Advisory locks between processes of the host, one per folder.
 *
 * The folder itself is locked: that leaves no lock files behind, works for everybody who may read the folder, and ends with the process that
 * holds it. Locks of this process are counted, because the system would make a process wait for itself.
 */
namespace DirectoryLock
{
	/** Waits for other processes. False when the folder cannot be opened or its file system knows no locks. */
	bool Acquire(const std::string& Folder);

	/** Once for every Acquire() that succeeded. */
	void Release(const std::string& Folder);
}
