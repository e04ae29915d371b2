// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Templates/Function.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectMacros.h"

class FGCObject;
class FReferenceCollector;
class UClass;
class UObject;
class UPackage;
struct FStaticConstructObjectParameters;

/** The next "Class_N" among the objects of one outer. */
struct FNextNumber
{
	const UClass* Class = nullptr;
	int32 Next = 0;
	int32 NextOfOuter = INDEX_NONE; // the counter of another class; few
};

/** What the table knows of one object. Slots are reused; the serial number tells their users apart. Moved as plain memory. */
struct FObjectItem
{
	UObject* Object = nullptr; // null: free
	int32 SerialNumber = 0; // order of creation over the whole process
	int32 StrongCount = 0; // of TStrongObjectPtr
	uint32 Mark = 0; // the last collection that reached it
	int32 HashNext = INDEX_NONE;
	int32 FirstInner = INDEX_NONE; // ring of objects with this outer, oldest first
	int32 NextInner = INDEX_NONE;
	int32 PreviousInner = INDEX_NONE;
	int32 FirstNextNumber = INDEX_NONE; // counters of its unnamed inner objects
	bool bNative = false; // lives as long as the process
	bool bRooted = false;
	bool bGarbage = false;
	bool bUnreachable = false; // being destroyed
};

/**
 * All objects of the process: their identity, the look-up by outer and name, and their end.
 *
 * Never destroyed, so that weak pointers in statics can always ask it.
 */
class FObjectTable
{
public:
	static FObjectTable& Get();

	//~ Objects
	const FObjectItem& GetItem(int32 Index) const { return Items[Index]; }
	FObjectItem& GetItem(int32 Index) { return Items[Index]; }
	FObjectItem& GetItem(const UObject* Object);
	int32 NumSlots() const { return Items.Num(); }
	/** Null when the slot has another user by now. */
	FObjectItem* FindItem(int32 Index, int32 SerialNumber)
	{
		return SerialNumber != 0 && Items[Index].SerialNumber == SerialNumber && Items[Index].Object ? &Items[Index] : nullptr;
	}

	/** Enters a new object, or one that is rebuilt in place at ReusedIndex. */
	int32 Add(UObject* Object, int32 ReusedIndex, bool bNative);

	//~ Look-up by name
	/** Null class finds any. */
	UObject* Find(const UClass* Class, const UObject* Outer, FName Name, bool bExactClass = false) const;
	FName MakeUniqueName(UObject* Outer, const UClass* Class, FName BaseName);
	void ChangeName(UObject* Object, FName NewName, UObject* NewOuter);
	/** The direct inner objects in order of creation or arrival. Operation must not make or rename objects. */
	template<typename OperationType>
	void ForEachInner(const UObject* Outer, OperationType&& Operation) const
	{
		const int32 First = Items[IndexOf(Outer)].FirstInner;
		for (int32 Index = First; Index != INDEX_NONE;)
		{
			Operation(Items[Index].Object);
			Index = Items[Index].NextInner == First ? INDEX_NONE : Items[Index].NextInner;
		}
	}

	//~ Construction
	UObject* Construct(const FStaticConstructObjectParameters& Params);
	/** A type of the object system, or its package: memory that exists already, no values from templates. */
	void ConstructNative(void* Memory, UClass* Class, UObject* Outer, FName Name, void (*Constructor)(void*, const class FObjectInitializer&));
	static void* Allocate(int32 Size, int32 Alignment);
	static void Free(void* Memory, int32 Size, int32 Alignment);
	/** Object was left by its constructor through an exception; its bases are destroyed already. */
	void DropHalfMade(UObject* Object, UClass* Class, bool bRegistered);

	//~ Destruction
	int32 CollectGarbage(EObjectFlags KeepFlags);
	void TearDown();
	void AddReferencer(FGCObject* Referencer);
	void RemoveReferencer(FGCObject* Referencer);

	//~ Of the running editor
	UPackage* GetTransientPackage();
	TFunction<UPackage*(const FString&)> PackageLoader;

private:
	friend class FReachability;

	static int32 IndexOf(const UObject* Object);
	uint32 BucketOf(const UObject* Outer, FName Name) const;
	void Link(int32 Index);
	void Unlink(int32 Index);
	void Rehash(int32 NumBuckets);
	void MarkReachable(EObjectFlags KeepFlags);
	/** Both phases of destruction. Types and packages go after the objects that need them. */
	void Destroy(const TArray<int32>& Doomed);
	void DestroyOne(int32 Index);
	void FreeSlot(int32 Index);
	UObject* FindForRebuild(const FStaticConstructObjectParameters& Params) const;
	FNextNumber& FindNextNumber(const UObject* Outer, const UClass* Class);
	void DropNextNumbers(FObjectItem& Item);

	TArray<FObjectItem> Items;
	TArray<int32> FreeSlots;
	TArray<FNextNumber> NextNumbers;
	TArray<int32> FreeNextNumbers;
	TArray<int32> Buckets; // number is a power of two
	int32 NumObjects = 0;
	int32 LastSerialNumber = 0;
	uint32 CurrentMark = 0;
	FGCObject* FirstReferencer = nullptr;
	UPackage* TransientPackage = nullptr;
};
