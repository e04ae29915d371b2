// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <string_view>
#include <vector>

/** Two edits of the same text, brought together. */
namespace LineMerge
{
	using FLines = std::vector<std::string_view>;

	/**
	 * Each edit counts as one replaced run of lines. Equal edits count once; two insertions in one place both stay, Theirs first.
	 * @param Base what both began with
	 * @return false when both changed the same lines, each in its own way; OutMerged is not touched then.
	 */
	bool Merge(const FLines& Base, const FLines& Mine, const FLines& Theirs, FLines& OutMerged);
}
