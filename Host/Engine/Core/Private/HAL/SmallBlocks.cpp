// Copyright Velmorant. All Rights Reserved.

#include "HAL/SmallBlocks.h"

#include <new>

#ifdef __SANITIZE_ADDRESS__

void* SmallBlocks::Allocate(std::size_t Size)
{
	return ::operator new(Size);
}

void SmallBlocks::Free(void* Block, std::size_t)
{
	::operator delete(Block);
}

#else

namespace SmallBlocks
{
	constexpr std::size_t PageSize = 64 * 1024;

	struct FFreeBlock
	{
		FFreeBlock* Next;
	};

	/** Blocks of one size: those that were freed, and the part of the newest page that nobody had yet. */
	struct FBin
	{
		FFreeBlock* FirstFree;
		char* Unused;
		char* PageEnd;
	};

	// Without constructor and destructor: strings are made before main, and go after it.
	constinit FBin Bins[MaxSize / Alignment] = {};

	FBin& GetBin(std::size_t Size)
	{
		return Bins[(Size - 1) / Alignment];
	}
}

void* SmallBlocks::Allocate(std::size_t Size)
{
	FBin& Bin = GetBin(Size);
	if (FFreeBlock* Block = Bin.FirstFree)
	{
		Bin.FirstFree = Block->Next;
		__builtin_prefetch(Bin.FirstFree, 1); // freed blocks lie anywhere: the next one is on its way while this one is filled
		return Block;
	}
	const std::size_t BlockSize = (Size + Alignment - 1) / Alignment * Alignment;
	if (static_cast<std::size_t>(Bin.PageEnd - Bin.Unused) < BlockSize)
	{
		Bin.Unused = static_cast<char*>(::operator new(PageSize));
		Bin.PageEnd = Bin.Unused + PageSize;
	}
	void* Block = Bin.Unused;
	Bin.Unused += BlockSize;
	return Block;
}

void SmallBlocks::Free(void* Block, std::size_t Size)
{
	FBin& Bin = GetBin(Size);
	Bin.FirstFree = ::new (Block) FFreeBlock{Bin.FirstFree};
}

#endif
