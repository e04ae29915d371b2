// Copyright Velmorant. All Rights Reserved.

#pragma once

struct FAssetRenameData;

namespace AssetRenaming
{
	/** Renames or moves one asset; false, with the reason in the log or among the problems, when it keeps its name. */
	bool Rename(const FAssetRenameData& Request);
}
