// Copyright Velmorant. All Rights Reserved.

#include "Objects/ObjectNumbers.h"

int32& FObjectNumbers::FindNext(int32& First, const UClass* Class)
{
	for (int32* Place = &First; *Place != INDEX_NONE; Place = &Counters[*Place].NextOfOuter)
	{
		const int32 Known = *Place;
		if (Counters[Known].Class == Class)
		{
			// To the front: who makes one object of a class makes more of them.
			*Place = Counters[Known].NextOfOuter;
			Counters[Known].NextOfOuter = First;
			First = Known;
			return Counters[Known].Next;
		}
	}
	const int32 Added = FreeCounters.IsEmpty() ? Counters.AddDefaulted() : FreeCounters.Pop();
	Counters[Added] = FCounter{Class, 0, First};
	First = Added;
	return Counters[Added].Next;
}

void FObjectNumbers::Drop(int32& First)
{
	for (int32 Index = First; Index != INDEX_NONE; Index = Counters[Index].NextOfOuter)
	{
		FreeCounters.Add(Index);
	}
	First = INDEX_NONE;
}
