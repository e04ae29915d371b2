// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostFiles.h"

#include <map>
#include <string>
#include <string_view>

/** Files and folders that exist only in memory, laid over those on disk. Paths are resolved and full. */
class FFileOverlay
{
public:
	struct FEntry
	{
		bool bDeleted = false;
		HostFiles::FSharedBytes Bytes; // empty when deleted
		HostFiles::FSharedBytes Basis; // as of HostFiles::FPendingWrite
	};

	using FEntries = std::map<std::string, FEntry, std::less<>>;

	/** Null when the disk counts. */
	const FEntry* Find(const std::string& Path) const;

	/** Whether a folder stands at Path because something was created in it. */
	bool HasDirectory(const std::string& Path) const;

	/** @param Basis counts with the first write of a file */
	void Write(const std::string& Path, HostFiles::FSharedBytes Bytes, HostFiles::FSharedBytes Basis);
	void Delete(const std::string& Path);

	/** Sorted by path. */
	const FEntries& GetEntries() const { return Entries; }

private:
	FEntries Entries;
};
