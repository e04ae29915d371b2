// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"

class UClass;

/** The next "Class_N" of unnamed objects: a counter for each class of objects in one outer. */
class FObjectNumbers
{
public:
	/** @param First the outer's first counter; counters are added in front of it and come to the front when they are used */
	int32& FindNext(int32& First, const UClass* Class);
	void Drop(int32& First);

private:
	struct FCounter
	{
		const UClass* Class = nullptr;
		int32 Next = 0;
		int32 NextOfOuter = INDEX_NONE; // the counter of another class; few
	};

	TArray<FCounter> Counters;
	TArray<int32> FreeCounters;
};
