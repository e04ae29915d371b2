// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string>
#include <vector>

class FFileOverlay;

/** What folders hold, sorted by bytes so that every machine sees the same order. Paths are full. */
namespace FolderListing
{
	enum class EDepth
	{
		ThisFolder,
		All
	};

	/** Files whose names end with Suffix, as an editor with this overlay (or null) sees them. */
	std::vector<std::string> FindFiles(const std::string& Folder, const std::string& Suffix, EDepth Depth, const FFileOverlay* Overlay);

	/** Folders on disk directly in Folder. */
	std::vector<std::string> FindDirectories(const std::string& Folder);
}
