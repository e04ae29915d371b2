// Copyright Velmorant. All Rights Reserved.

#include "VariantNameIndex.h"

void FVariantNameIndex::FPositions::Add(int32 Position)
{
	if (First == INDEX_NONE || Position < First)
	{
		Swap(First, Position);
	}
	if (Position == INDEX_NONE)
	{
		return;
	}
	int32 At = Others.Num();
	while (At > 0 && Others[At - 1] > Position)
	{
		--At;
	}
	Others.Insert(Position, At);
}

bool FVariantNameIndex::FPositions::Remove(int32 Position)
{
	if (Position != First)
	{
		Others.RemoveSingle(Position);
		return false;
	}
	if (Others.IsEmpty())
	{
		return true;
	}
	First = Others[0];
	Others.RemoveAt(0);
	return false;
}

void FVariantNameIndex::Reset()
{
	ElementPositions.Reset();
	Texts.Reset();
	Positions.Reset();
	LowestNumbers.Reset();
	LikelyNext = 0;
	bTextsMayRepeat = false;
}

void FVariantNameIndex::Append(const UObject* Element, const FString& Text)
{
	const int32 Position = Texts.Add(Text);
	ElementPositions.Add(Element, Position);
	AddPosition(Text, Position);
}

void FVariantNameIndex::AddPosition(const FString& Text, int32 Position)
{
	FPositions& Found = Positions.FindOrAdd(Text);
	Found.Add(Position);
	bTextsMayRepeat = bTextsMayRepeat || !Found.Others.IsEmpty();
}

void FVariantNameIndex::ChangeText(const UObject* Element, const FString& NewText)
{
	const int32 Position = FindElement(Element);
	if (Position == INDEX_NONE || Texts[Position].Equals(NewText))
	{
		return;
	}
	if (Positions.FindOrAdd(Texts[Position]).Remove(Position))
	{
		Positions.Remove(Texts[Position]);
		LowestNumbers.Reset(); // a number may have become free
	}
	AddPosition(NewText, Position);
	Texts[Position] = NewText;
}

int32 FVariantNameIndex::FindText(const FString& Text) const
{
	if (!bTextsMayRepeat && Texts.IsValidIndex(LikelyNext) && Texts[LikelyNext] == Text)
	{
		const int32 Position = LikelyNext;
		LikelyNext = (Position + 1) % Texts.Num();
		return Position;
	}
	const FPositions* Found = Positions.Find(Text);
	if (Found == nullptr)
	{
		return INDEX_NONE;
	}
	LikelyNext = (Found->First + 1) % Texts.Num();
	return Found->First;
}

int32 FVariantNameIndex::FindElement(const UObject* Element) const
{
	const int32* Position = ElementPositions.Find(Element);
	return Position != nullptr ? *Position : INDEX_NONE;
}

FString FVariantNameIndex::MakeUniqueText(const FString& Prefix)
{
	if (FindText(Prefix) == INDEX_NONE)
	{
		return Prefix;
	}
	int32 Number = FMath::Max(1, LowestNumbers.FindRef(Prefix));
	FString Text = FString::Printf(TEXT("%s %d"), *Prefix, Number);
	while (FindText(Text) != INDEX_NONE)
	{
		++Number;
		Text = FString::Printf(TEXT("%s %d"), *Prefix, Number);
	}
	LowestNumbers.Add(Prefix, Number);
	return Text;
}
