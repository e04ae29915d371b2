// Copyright Velmorant. All Rights Reserved.

#include "VariantNameIndex.h"

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
	TArray<int32>& OldPositions = Positions.FindOrAdd(Entry->Text);
	OldPositions.RemoveSingle(Entry->Position);
	if (OldPositions.IsEmpty())
	{
		Positions.Remove(Entry->Text);
		LowestNumbers.Reset(); // a number may have become free
	}
	TArray<int32>& NewPositions = Positions.FindOrAdd(NewText);
	int32 At = NewPositions.Num();
	while (At > 0 && NewPositions[At - 1] > Entry->Position)
	{
		--At;
	}
	NewPositions.Insert(Entry->Position, At);
	Entry->Text = NewText;
}

int32 FVariantNameIndex::FindText(const FString& Text) const
{
	const TArray<int32>* Found = Positions.Find(Text);
	return Found != nullptr ? (*Found)[0] : INDEX_NONE;
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
