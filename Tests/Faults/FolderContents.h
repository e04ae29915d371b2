// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "TemporaryFolder.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/** Bytes of all files below a folder, by their paths in it. Folders have a slash at their ends, and no bytes. */
using FContents = std::map<std::string, std::string>;

namespace FolderContents
{
	/** Reports hold times, so that no two are the same: their numbers are left out. */
	FContents Look(const FTemporaryFolder& Folder);

	void Restore(const FTemporaryFolder& Folder, const FContents& Wanted);

	/** The paths that only one of them has, or whose bytes differ, but for those that begin so. */
	std::string TellDifference(const FContents& Left, const FContents& Right, const std::vector<std::string>& Ignored);
}

/** A call on files that a run made. */
struct FFileCall
{
	std::string Name;
	std::string Path;

	bool IsOfReading() const { return Name == "openRead" || Name == "read" || Name == "opendir"; }
};

/**
 * What a run without faults did, and what the same does when it has been done. A run that saves a file several times leaves any of those
 * contents when it is stopped, and no other.
 */
class FFaultlessRun
{
public:
	/** @param Log the folder that Tests/FaultyFiles wrote */
	FFaultlessRun(const FTemporaryFolder& Folder, const FTemporaryFolder& Log, const FContents& InBefore);

	/** To be called when the run has been done once more. */
	void AddSecond(const FContents& Contents) { Learn(After, Contents); }

	/** What Found holds that the run never made, or lacks although it was there all the time; empty for nothing. */
	std::string FindForeign(const FContents& Found, bool bLeftovers) const;

	FContents Before;
	FContents After;
	std::vector<FFileCall> Calls;

private:
	using FContent = std::optional<std::string>; // none: the path is not there

	void Learn(const FContents& From, const FContents& To);

	std::map<std::string, std::set<FContent>> Known;
};
