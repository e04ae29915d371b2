// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <cstddef>

/**
 * Memory for the small things of which an editor has many: strings, short arrays, objects.
 *
 * Blocks of one size lie side by side, without headers, and are used again, the last freed first. What was taken from the system for
 * them is never given back. On one thread, as all of the host.
 *
 * Under the address sanitizer each block comes from the system, so that it sees every use after the end.
 */
namespace SmallBlocks
{
	constexpr std::size_t MaxSize = 256; // bytes
	constexpr std::size_t Alignment = 16;

	void* Allocate(std::size_t Size);

	/** Not null; with the size of its allocation. */
	void Free(void* Block, std::size_t Size);
}
