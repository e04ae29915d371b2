// Copyright Velmorant. All Rights Reserved.

#include "Objects/ObjectNameTable.h"

#include "UObject/Class.h"

FObjectNameTable& FObjectNameTable::Get()
{
	static FObjectNameTable* const Names = new FObjectNameTable(FObjectTable::Get());
	return *Names;
}

UObject* FObjectNameTable::Find(const UClass* Class, const UObject* Outer, FName Name, bool bExactClass) const
{
	if (Buckets.IsEmpty())
	{
		return nullptr;
	}
	for (int32 Index = Buckets[BucketOf(Outer, Name)]; Index != INDEX_NONE;)
	{
		const FObjectItem& Item = Table.GetItem(Index);
		UObject* Object = Item.Object;
		if (Object->GetFName() == Name && Object->GetOuter() == Outer && !Item.bUnreachable && (!Class || Object->GetClass() == Class || (!bExactClass && Object->IsA(Class))))
		{
			return Object;
		}
		Index = Item.Links.HashNext;
	}
	return nullptr;
}

FName FObjectNameTable::MakeUniqueName(UObject* Outer, const UClass* Class, FName BaseName)
{
	const FName Base = BaseName.IsNone() ? Class->GetFName() : BaseName;
	const bool bCounted = Outer && Base == Class->GetFName();
	int32 Uncounted = 0;
	int32& Next = bCounted ? Numbers.FindNext(Table.GetItem(Outer).Links.FirstNumber, Class) : Uncounted;
	FName Name;
	do
	{
		Name = FName(Base, NAME_EXTERNAL_TO_INTERNAL(Next++));
	} while (Find(nullptr, Outer, Name));
	return Name;
}

void FObjectNameTable::ChangeName(UObject* Object, FName NewName, UObject* NewOuter)
{
	const int32 Index = FObjectTable::IndexOf(Object);
	if (Object->GetOuter() == NewOuter)
	{
		// The place among the outer's objects stays.
		LeaveBucket(Index);
		Object->NamePrivate = NewName;
		EnterBucket(Index);
		return;
	}
	Unlink(Index);
	Object->NamePrivate = NewName;
	Object->OuterPrivate = NewOuter;
	Link(Index);
}

void FObjectNameTable::Add(int32 Index)
{
	if (NumLinked >= Buckets.Num())
	{
		Rehash(Buckets.IsEmpty() ? 4096 : Buckets.Num() * 2);
	}
	++NumLinked;
	Link(Index);
	LinksOf(Index).bLinked = true;
}

void FObjectNameTable::Remove(int32 Index)
{
	Unlink(Index);
	LinksOf(Index).HashNext = INDEX_NONE;
	LinksOf(Index).FirstInner = INDEX_NONE;
	LinksOf(Index).bLinked = false;
	--NumLinked;
}

uint32 FObjectNameTable::BucketOf(const UObject* Outer, FName Name) const
{
	// Objects numbered one after the other, as most are made, get buckets one after the other: no clashes, and memory that is at hand.
	const uint32 Hash = GetTypeHash(Name) + PointerHash(Outer) * 2654435761u;
	return Hash & static_cast<uint32>(Buckets.Num() - 1);
}

void FObjectNameTable::EnterBucket(int32 Index)
{
	const UObject* Object = Table.GetItem(Index).Object;
	int32& Bucket = Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	LinksOf(Index).HashNext = Bucket;
	Bucket = Index;
}

void FObjectNameTable::LeaveBucket(int32 Index)
{
	const UObject* Object = Table.GetItem(Index).Object;
	int32* Place = &Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	while (*Place != Index)
	{
		Place = &LinksOf(*Place).HashNext;
	}
	*Place = LinksOf(Index).HashNext;
}

void FObjectNameTable::Link(int32 Index)
{
	EnterBucket(Index);
	const UObject* Outer = Table.GetItem(Index).Object->GetOuter();
	if (!Outer)
	{
		return;
	}
	FObjectNameLinks& Links = LinksOf(Index);
	FObjectNameLinks& OuterLinks = Table.GetItem(Outer).Links;
	if (OuterLinks.FirstInner == INDEX_NONE)
	{
		OuterLinks.FirstInner = Links.NextInner = Links.PreviousInner = Index;
		return;
	}
	FObjectNameLinks& First = LinksOf(OuterLinks.FirstInner);
	Links.NextInner = OuterLinks.FirstInner;
	Links.PreviousInner = First.PreviousInner;
	LinksOf(First.PreviousInner).NextInner = Index;
	First.PreviousInner = Index;
}

void FObjectNameTable::Unlink(int32 Index)
{
	LeaveBucket(Index);
	const UObject* Outer = Table.GetItem(Index).Object->GetOuter();
	if (!Outer)
	{
		return;
	}
	const FObjectNameLinks& Links = LinksOf(Index);
	FObjectNameLinks& OuterLinks = Table.GetItem(Outer).Links;
	if (OuterLinks.FirstInner == Index)
	{
		OuterLinks.FirstInner = Links.NextInner == Index ? INDEX_NONE : Links.NextInner;
	}
	LinksOf(Links.PreviousInner).NextInner = Links.NextInner;
	LinksOf(Links.NextInner).PreviousInner = Links.PreviousInner;
}

void FObjectNameTable::Rehash(int32 NumBuckets)
{
	Buckets.Empty(NumBuckets);
	for (int32 Bucket = 0; Bucket < NumBuckets; ++Bucket)
	{
		Buckets.Add(INDEX_NONE);
	}
	for (int32 Index = 0; Index < Table.NumSlots(); ++Index)
	{
		const FObjectItem& Item = Table.GetItem(Index);
		if (Item.Object && Item.Links.bLinked)
		{
			EnterBucket(Index);
		}
	}
}
