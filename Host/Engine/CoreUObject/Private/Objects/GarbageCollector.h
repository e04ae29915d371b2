// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Objects/ObjectTable.h"

class FGCObject;

/** The end of objects: mark and sweep over reflected references, and the end of an editor. Lives as long as the object table. */
class FGarbageCollector
{
public:
	static FGarbageCollector& Get();

	/** @return how many objects it destroyed */
	int32 Collect(EObjectFlags KeepFlags);
	/** Destroys all that is not native. */
	void TearDown();

	void AddReferencer(FGCObject* Referencer);
	void RemoveReferencer(FGCObject* Referencer);

private:
	explicit FGarbageCollector(FObjectTable& InTable)
		: Table(InTable)
	{
	}

	void MarkReachable(EObjectFlags KeepFlags);
	/** Both phases of destruction. Types and packages go after the objects that need them. */
	void Destroy(const TArray<int32>& Doomed);
	void DestroyOne(int32 Index);

	FObjectTable& Table;
	FGCObject* FirstReferencer = nullptr;
};
