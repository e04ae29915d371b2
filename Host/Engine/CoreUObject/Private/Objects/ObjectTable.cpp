// Copyright Velmorant. All Rights Reserved.

#include "Objects/ObjectTable.h"

#include "Misc/AssertionMacros.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"

#include <cstring>
#include <type_traits>

static_assert(std::is_trivially_copyable_v<FObjectItem>);

FObjectTable& FObjectTable::Get()
{
	static FObjectTable* const Table = new FObjectTable();
	return *Table;
}

int32 FObjectTable::IndexOf(const UObject* Object)
{
	return Object->InternalIndex;
}

FObjectItem& FObjectTable::GetItem(const UObject* Object)
{
	return Items[Object->InternalIndex];
}

int32 FObjectTable::Add(UObject* Object, int32 ReusedIndex, bool bNative)
{
	if (ReusedIndex != INDEX_NONE)
	{
		Items[ReusedIndex].bGarbage = false;
		Items[ReusedIndex].Mark = CurrentMark;
		return Object->InternalIndex = ReusedIndex;
	}
	if (NumObjects >= Buckets.Num())
	{
		Rehash(Buckets.IsEmpty() ? 4096 : Buckets.Num() * 2);
	}
	const int32 Index = FreeSlots.IsEmpty() ? Items.AddDefaulted() : FreeSlots.Pop();
	FObjectItem& Item = Items[Index];
	Item = FObjectItem();
	Item.Object = Object;
	Item.SerialNumber = ++LastSerialNumber;
	Item.bNative = bNative;
	Item.Mark = CurrentMark; // what is made during a collection survives it
	Object->InternalIndex = Index;
	Link(Index);
	++NumObjects;
	return Index;
}

uint32 FObjectTable::BucketOf(const UObject* Outer, FName Name) const
{
	// Objects numbered one after the other, as most are made, get buckets one after the other: no clashes, and memory that is at hand.
	const uint32 Hash = GetTypeHash(Name) + PointerHash(Outer) * 2654435761u;
	return Hash & static_cast<uint32>(Buckets.Num() - 1);
}

void FObjectTable::Link(int32 Index)
{
	UObject* Object = Items[Index].Object;
	int32& Bucket = Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	Items[Index].HashNext = Bucket;
	Bucket = Index;

	if (const UObject* Outer = Object->GetOuter())
	{
		FObjectItem& OuterItem = Items[IndexOf(Outer)];
		FObjectItem& Item = Items[Index];
		if (OuterItem.FirstInner == INDEX_NONE)
		{
			OuterItem.FirstInner = Item.NextInner = Item.PreviousInner = Index;
			return;
		}
		FObjectItem& First = Items[OuterItem.FirstInner];
		Item.NextInner = OuterItem.FirstInner;
		Item.PreviousInner = First.PreviousInner;
		Items[First.PreviousInner].NextInner = Index;
		First.PreviousInner = Index;
	}
}

void FObjectTable::Unlink(int32 Index)
{
	FObjectItem& Item = Items[Index];
	const UObject* Object = Item.Object;
	int32* Place = &Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	while (*Place != Index)
	{
		Place = &Items[*Place].HashNext;
	}
	*Place = Item.HashNext;

	if (const UObject* Outer = Object->GetOuter())
	{
		FObjectItem& OuterItem = Items[IndexOf(Outer)];
		if (OuterItem.FirstInner == Index)
		{
			OuterItem.FirstInner = Item.NextInner == Index ? INDEX_NONE : Item.NextInner;
		}
		Items[Item.PreviousInner].NextInner = Item.NextInner;
		Items[Item.NextInner].PreviousInner = Item.PreviousInner;
	}
}

void FObjectTable::Rehash(int32 NumBuckets)
{
	Buckets.Empty(NumBuckets);
	for (int32 Bucket = 0; Bucket < NumBuckets; ++Bucket)
	{
		Buckets.Add(INDEX_NONE);
	}
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		const UObject* Object = Items[Index].Object;
		if (Object && Items[Index].Mark != MAX_uint32)
		{
			int32& Bucket = Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
			Items[Index].HashNext = Bucket;
			Bucket = Index;
		}
	}
}

UObject* FObjectTable::Find(const UClass* Class, const UObject* Outer, FName Name, bool bExactClass) const
{
	if (Buckets.IsEmpty())
	{
		return nullptr;
	}
	for (int32 Index = Buckets[BucketOf(Outer, Name)]; Index != INDEX_NONE; Index = Items[Index].HashNext)
	{
		UObject* Object = Items[Index].Object;
		if (Object->GetFName() == Name && Object->GetOuter() == Outer && !Items[Index].bUnreachable && (!Class || Object->GetClass() == Class || (!bExactClass && Object->IsA(Class))))
		{
			return Object;
		}
	}
	return nullptr;
}

FName FObjectTable::MakeUniqueName(UObject* Outer, const UClass* Class, FName BaseName)
{
	const FName Base = BaseName.IsNone() ? Class->GetFName() : BaseName;
	const bool bCounted = Outer && Base == Class->GetFName();
	int32 Uncounted = 0;
	int32& Next = bCounted ? FindNextNumber(Outer, Class).Next : Uncounted;
	FName Name;
	do
	{
		Name = FName(Base, NAME_EXTERNAL_TO_INTERNAL(Next++));
	} while (Find(nullptr, Outer, Name));
	return Name;
}

FNextNumber& FObjectTable::FindNextNumber(const UObject* Outer, const UClass* Class)
{
	int32& First = GetItem(Outer).FirstNextNumber;
	for (int32* Place = &First; *Place != INDEX_NONE; Place = &NextNumbers[*Place].NextOfOuter)
	{
		const int32 Known = *Place;
		if (NextNumbers[Known].Class == Class)
		{
			// To the front: who makes one object of a class makes more of them.
			*Place = NextNumbers[Known].NextOfOuter;
			NextNumbers[Known].NextOfOuter = First;
			First = Known;
			return NextNumbers[Known];
		}
	}
	const int32 Added = FreeNextNumbers.IsEmpty() ? NextNumbers.AddDefaulted() : FreeNextNumbers.Pop();
	NextNumbers[Added] = FNextNumber{Class, 0, First};
	First = Added;
	return NextNumbers[Added];
}

void FObjectTable::DropNextNumbers(FObjectItem& Item)
{
	for (int32 Index = Item.FirstNextNumber; Index != INDEX_NONE; Index = NextNumbers[Index].NextOfOuter)
	{
		FreeNextNumbers.Add(Index);
	}
	Item.FirstNextNumber = INDEX_NONE;
}

void FObjectTable::ChangeName(UObject* Object, FName NewName, UObject* NewOuter)
{
	const int32 Index = IndexOf(Object);
	if (Object->GetOuter() == NewOuter)
	{
		// The place among the outer's objects stays.
		int32* Place = &Buckets[BucketOf(NewOuter, Object->GetFName())];
		while (*Place != Index)
		{
			Place = &Items[*Place].HashNext;
		}
		*Place = Items[Index].HashNext;
		Object->NamePrivate = NewName;
		int32& Bucket = Buckets[BucketOf(NewOuter, NewName)];
		Items[Index].HashNext = Bucket;
		Bucket = Index;
		return;
	}
	Unlink(Index);
	Object->NamePrivate = NewName;
	Object->OuterPrivate = NewOuter;
	Link(Index);
}

void* FObjectTable::Allocate(int32 Size, int32 Alignment)
{
	void* Memory = UE::Core::Private::AllocateElements(1, static_cast<std::size_t>(Size), static_cast<std::size_t>(Alignment));
	std::memset(Memory, 0, static_cast<std::size_t>(Size));
	return Memory;
}

void FObjectTable::Free(void* Memory, int32 Size, int32 Alignment)
{
	UE::Core::Private::FreeElements(Memory, 1, static_cast<std::size_t>(Size), static_cast<std::size_t>(Alignment));
}

UPackage* FObjectTable::GetTransientPackage()
{
	if (!TransientPackage)
	{
		FStaticConstructObjectParameters Params(UPackage::StaticClass());
		Params.Name = FName("/Engine/Transient");
		Params.SetFlags = RF_Public | RF_Transient;
		TransientPackage = static_cast<UPackage*>(Construct(Params));
		TransientPackage->AddToRoot();
	}
	return TransientPackage;
}
