// Copyright Velmorant. All Rights Reserved.

#include "UObject/NamePool.h"

#include <cstring>
#include <utility>

namespace NamePool
{
	constexpr uint32 NoEntry = MAX_uint32;
	constexpr SIZE_T BlockUnits = 32 * 1024;
	constexpr SIZE_T FirstSlots = 8192; // a freshly started editor has a few thousand names
}

FNamePool& FNamePool::Get()
{
	static FNamePool* Pool = new FNamePool;
	return *Pool;
}

FNamePool::FNamePool()
	: Slots(NamePool::FirstSlots, NamePool::NoEntry)
{
	Entries.reserve(NamePool::FirstSlots / 2);
	const FStringView None(TEXT("None"));
	const uint32 Hash = UE::String::Private::HashIgnoringCase(None.GetData(), None.Len());
	Slots[FindSlot(None, Hash)] = AddEntry(None, Hash); // id 0
	++NumUsedSlots;
}

FNamePool::FIds FNamePool::Find(FStringView Text, EFindName FindType)
{
	if (Text.IsEmpty())
	{
		return FIds();
	}
	checkf(Text.Len() < NAME_SIZE, TEXT("A name may have at most %d characters; this one has %d: \"%s...\""), NAME_SIZE - 1, Text.Len(), *FString(Text.Left(64)));
	const uint32 Hash = UE::String::Private::HashIgnoringCase(Text.GetData(), Text.Len());
	SIZE_T Slot = FindSlot(Text, Hash);
	if (Slots[Slot] == NamePool::NoEntry)
	{
		if (FindType == FNAME_Find)
		{
			return FIds();
		}
		if ((NumUsedSlots + 1) * 2 > Slots.size())
		{
			Grow();
			Slot = FindSlot(Text, Hash);
		}
		Slots[Slot] = AddEntry(Text, Hash);
		++NumUsedSlots;
		return FIds{FNameEntryId(Slots[Slot]), FNameEntryId(Slots[Slot])};
	}
	const uint32 First = Slots[Slot];
	uint32 Spelling = FindSpelling(First, Text);
	if (Spelling == NamePool::NoEntry)
	{
		Spelling = FindType == FNAME_Find ? First : AddEntry(Text, Hash);
		if (FindType == FNAME_Add)
		{
			Entries[Spelling].ComparisonId = First;
			Entries[Spelling].NextSpelling = Entries[First].NextSpelling;
			Entries[First].NextSpelling = Spelling;
		}
	}
	return FIds{FNameEntryId(First), FNameEntryId(Spelling)};
}

FStringView FNamePool::GetText(FNameEntryId Id) const
{
	check(IsValid(Id));
	const FEntry& Entry = Entries[Id.ToUnstableInt()];
	return FStringView(Entry.Text, static_cast<int32>(Entry.Len));
}

uint32 FNamePool::AddEntry(FStringView Text, uint32 Hash)
{
	const uint32 Id = static_cast<uint32>(Entries.size());
	Entries.push_back(FEntry{Hash, Id, 0, static_cast<uint32>(Text.Len()), Store(Text)});
	return Id;
}

uint32 FNamePool::FindSpelling(uint32 First, FStringView Text) const
{
	uint32 Id = First;
	do
	{
		const FEntry& Entry = Entries[Id];
		if (std::memcmp(Entry.Text, Text.GetData(), Text.Len() * sizeof(TCHAR)) == 0)
		{
			return Id;
		}
		Id = Entry.NextSpelling;
	} while (Id != 0);
	return NamePool::NoEntry;
}

const TCHAR* FNamePool::Store(FStringView Text)
{
	if (Blocks.empty() || BlockUsed + Text.Len() > NamePool::BlockUnits)
	{
		Blocks.push_back(std::make_unique_for_overwrite<TCHAR[]>(NamePool::BlockUnits));
		BlockUsed = 0;
	}
	TCHAR* const Stored = Blocks.back().get() + BlockUsed;
	std::memcpy(Stored, Text.GetData(), Text.Len() * sizeof(TCHAR));
	BlockUsed += Text.Len();
	return Stored;
}

/** Where the text stands, or the free slot where it belongs. */
SIZE_T FNamePool::FindSlot(FStringView Text, uint32 Hash) const
{
	const SIZE_T Mask = Slots.size() - 1;
	for (SIZE_T Slot = Hash & Mask;; Slot = (Slot + 1) & Mask)
	{
		if (Slots[Slot] == NamePool::NoEntry)
		{
			return Slot;
		}
		const FEntry& Entry = Entries[Slots[Slot]];
		if (Entry.Hash == Hash && FStringView(Entry.Text, static_cast<int32>(Entry.Len)).Equals(Text, ESearchCase::IgnoreCase))
		{
			return Slot;
		}
	}
}

void FNamePool::Grow()
{
	const std::vector<uint32> Old = std::exchange(Slots, std::vector<uint32>(Slots.size() * 2, NamePool::NoEntry));
	const SIZE_T Mask = Slots.size() - 1;
	for (const uint32 Id : Old)
	{
		if (Id == NamePool::NoEntry)
		{
			continue;
		}
		SIZE_T Slot = Entries[Id].Hash & Mask;
		while (Slots[Slot] != NamePool::NoEntry)
		{
			Slot = (Slot + 1) & Mask;
		}
		Slots[Slot] = Id;
	}
}
