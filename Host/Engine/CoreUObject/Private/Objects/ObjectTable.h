// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "UObject/Object.h"

/** An object's place in FObjectNameTable. */
struct FObjectNameLinks
{
	int32 HashNext = INDEX_NONE;
	int32 FirstInner = INDEX_NONE; // ring of objects with this outer, oldest first
	int32 NextInner = INDEX_NONE;
	int32 PreviousInner = INDEX_NONE;
	int32 FirstNumber = INDEX_NONE; // in FObjectNumbers
	bool bLinked = false; // can be found
};

/** What the table knows of one object. Slots are reused; the serial number tells their users apart. Moved as plain memory. */
struct FObjectItem
{
	UObject* Object = nullptr; // null: free
	int32 SerialNumber = 0; // order of creation over the whole process
	int32 StrongCount = 0; // of TStrongObjectPtr
	uint32 Mark = 0; // the last collection that reached it
	FObjectNameLinks Links;
	bool bNative = false; // lives as long as the process
	bool bRooted = false;
	bool bGarbage = false;
	bool bUnreachable = false; // being destroyed
};

/**
 * The identities of all objects of the process: a slot for each, and its state.
 *
 * Never destroyed, so that weak pointers in statics can always ask it. How objects are named and found is FObjectNameTable's, how they
 * come into being FObjectFactory's, and how they end FGarbageCollector's.
 */
class FObjectTable
{
public:
	static FObjectTable& Get();

	static int32 IndexOf(const UObject* Object) { return static_cast<int32>(Object->GetUniqueID()); }
	int32 NumSlots() const { return Items.Num(); }
	const FObjectItem& GetItem(int32 Index) const { return Items[Index]; }
	FObjectItem& GetItem(int32 Index) { return Items[Index]; }
	FObjectItem& GetItem(const UObject* Object) { return Items[IndexOf(Object)]; }
	/** Null when the slot has another user by now. */
	FObjectItem* FindItem(int32 Index, int32 SerialNumber)
	{
		return SerialNumber != 0 && Items[Index].SerialNumber == SerialNumber && Items[Index].Object ? &Items[Index] : nullptr;
	}

	/** A slot for a new object. What is made during a collection survives it. */
	int32 Enter(UObject* Object, bool bNative);
	/** The slot of an object that is rebuilt in place. */
	void Renew(int32 Index);
	void Release(int32 Index);

	/** Of the newest collection. */
	uint32 GetMark() const { return CurrentMark; }
	uint32 StartMarking() { return ++CurrentMark; }

private:
	TArray<FObjectItem> Items;
	TArray<int32> FreeSlots;
	int32 LastSerialNumber = 0;
	uint32 CurrentMark = 0;
};
