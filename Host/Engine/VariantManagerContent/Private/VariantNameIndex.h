// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UObject;

/**
 * Finds the elements of a list by text and by address without walking over the list.
 * Texts that differ only in case are the same text; of equal ones the first in the list is found.
 */
class FVariantNameIndex
{
public:
	void Reset();

	int32 Num() const { return Texts.Num(); }

	/** For the element that was put behind all others. */
	void Append(const UObject* Element, const FString& Text);

	/** For an element whose text has changed. One that is not here is ignored. */
	void ChangeText(const UObject* Element, const FString& NewText);

	/** Position in the list; -1 when no element has the text. */
	int32 FindText(const FString& Text) const;

	/** Position in the list; -1 when it is not in it. */
	int32 FindElement(const UObject* Element) const;

	/** Prefix when that is free, otherwise with a blank and the lowest free number from 1 on behind it. */
	FString MakeUniqueText(const FString& Prefix);

private:
	/** Positions of the elements with one text, ascending. Nearly always there is one only, and it is found without another step. */
	struct FPositions
	{
		void Add(int32 Position);

		/** @return whether none is left. */
		bool Remove(int32 Position);

		int32 First = INDEX_NONE;
		TArray<int32> Others;
	};

	void AddPosition(const FString& Text, int32 Position);

	TMap<const UObject*, int32> ElementPositions;
	TArray<FString> Texts; // by position
	TMap<FString, FPositions> Positions; // never without a first one
	TMap<FString, int32> LowestNumbers; // by prefix: no lower number is free

	/** Lists are mostly asked for their texts in order: the one behind the last found is tried before anything is hashed. */
	mutable int32 LikelyNext = 0;
	bool bTextsMayRepeat = false; // then the first of equal ones counts, and guessing is no use
};
