// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UObject/NameTypes.h"

#include <memory>
#include <vector>

/**
 * The name table: each text once, in every case it was ever written in. Made on first use, which may be before main, and never destroyed.
 *
 * All spellings of one text form a chain that begins with the first one, whose id compares for all of them. Only the first ones are
 * in the hash table (open addressing, at most half full).
 */
class FNamePool
{
public:
	struct FEntry
	{
		uint32 Hash; // ignoring case
		uint32 ComparisonId; // the first spelling
		uint32 NextSpelling; // 0 ends the chain
		uint32 Len;
		const TCHAR* Text; // not terminated
	};

	struct FIds
	{
		FNameEntryId Comparison;
		FNameEntryId Display;
	};

	static FNamePool& Get();

	/** None for an empty text and, with FNAME_Find, for an unknown one. A known text in a new case is no reason to add that case. */
	FIds Find(FStringView Text, EFindName FindType);

	FStringView GetText(FNameEntryId Id) const;
	bool IsValid(FNameEntryId Id) const { return Id.ToUnstableInt() < Entries.size(); }

private:
	FNamePool();

	uint32 AddEntry(FStringView Text, uint32 Hash);
	uint32 FindSpelling(uint32 First, FStringView Text) const;
	const TCHAR* Store(FStringView Text);
	SIZE_T FindSlot(FStringView Text, uint32 Hash) const;
	void Grow();

	std::vector<FEntry> Entries; // by id
	std::vector<uint32> Slots; // ids of first spellings, NoEntry where free; a power of two
	SIZE_T NumUsedSlots = 0;
	std::vector<std::unique_ptr<TCHAR[]>> Blocks; // the characters
	SIZE_T BlockUsed = 0;
};
