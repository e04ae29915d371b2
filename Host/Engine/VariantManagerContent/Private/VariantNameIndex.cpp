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
	Entries.Reset();
	Positions.Reset();
	LowestNumbers.Reset();
}

void FVariantNameIndex::Append(const UObject* Element, const FString& Text)
{
	const int32 Position = Entries.Num();
	Entries.Add(Element, FEntry{Text, Position});
	Positions.FindOrAdd(Text).Add(Position);
}

void FVariantNameIndex::ChangeText(const UObject* Element, const FString& NewText)
{
	FEntry* Entry = Entries.Find(Element);
	if (Entry == nullptr || Entry->Text.Equals(NewText))
	{
		return;
	}
	if (Positions.FindOrAdd(Entry->Text).Remove(Entry->Position))
	{
		Positions.Remove(Entry->Text);
		LowestNumbers.Reset(); // a number may have become free
	}
	Positions.FindOrAdd(NewText).Add(Entry->Position);
	Entry->Text = NewText;
}

int32 FVariantNameIndex::FindText(const FString& Text) const
{
	const FPositions* Found = Positions.Find(Text);
	return Found != nullptr ? Found->First : INDEX_NONE;
}

int32 FVariantNameIndex::FindElement(const UObject* Element) const
{
	const FEntry* Entry = Entries.Find(Element);
	return Entry != nullptr ? Entry->Position : INDEX_NONE;
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
