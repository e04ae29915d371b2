// Copyright Velmorant. All Rights Reserved.

#include "MinimapConfigAsset.h"

FString UMinimapConfigAsset::GetFloorList() const
{
	TArray<FString> Entries;
	for (const FMinimapFloor& Floor : Floors)
	{
		const FString Index = FString::FromInt(Entries.Num());
		Entries.Add(Floor.DisplayName.IsEmpty() ? Index : FString::Printf(TEXT("%s (%s)"), *Index, *Floor.DisplayName.ToString()));
	}
	return FString::Join(Entries, TEXT(", "));
}
