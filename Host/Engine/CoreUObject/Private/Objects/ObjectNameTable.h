// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Objects/ObjectNumbers.h"
#include "Objects/ObjectTable.h"

/** Finds objects by outer and name, lists what lies in one, and makes names that nobody has. Lives as long as the object table. */
class FObjectNameTable
{
public:
	static FObjectNameTable& Get();

	/** Null class finds any. */
	UObject* Find(const UClass* Class, const UObject* Outer, FName Name, bool bExactClass = false) const;
	FName MakeUniqueName(UObject* Outer, const UClass* Class, FName BaseName);
	void ChangeName(UObject* Object, FName NewName, UObject* NewOuter);
	/** The direct inner objects in order of creation or arrival. Operation must not make or rename objects. */
	template<typename OperationType>
	void ForEachInner(const UObject* Outer, OperationType&& Operation) const
	{
		const int32 First = Table.GetItem(Outer).Links.FirstInner;
		for (int32 Index = First; Index != INDEX_NONE;)
		{
			Operation(Table.GetItem(Index).Object);
			const int32 Next = Table.GetItem(Index).Links.NextInner;
			Index = Next == First ? INDEX_NONE : Next;
		}
	}

	//~ Objects that come and go, by their slot in the object table
	void Add(int32 Index);
	/** Nobody finds it any more, nor what lies in it. */
	void Remove(int32 Index);
	/** Numbering of unnamed inner objects starts anew. */
	void DropNumbers(int32 Index) { Numbers.Drop(LinksOf(Index).FirstNumber); }

private:
	explicit FObjectNameTable(FObjectTable& InTable)
		: Table(InTable)
	{
	}

	FObjectNameLinks& LinksOf(int32 Index) { return Table.GetItem(Index).Links; }
	uint32 BucketOf(const UObject* Outer, FName Name) const;
	void EnterBucket(int32 Index);
	void LeaveBucket(int32 Index);
	void Link(int32 Index);
	void Unlink(int32 Index);
	void Rehash(int32 NumBuckets);

	FObjectTable& Table;
	FObjectNumbers Numbers;
	TArray<int32> Buckets; // number is a power of two
	int32 NumLinked = 0;
};
