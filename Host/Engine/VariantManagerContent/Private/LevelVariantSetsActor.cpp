// Copyright Velmorant. All Rights Reserved.

#include "LevelVariantSetsActor.h"

#include "LevelVariantSets.h"

ULevelVariantSets* ALevelVariantSetsActor::GetLevelVariantSets(bool bLoad)
{
	return Cast<ULevelVariantSets>(bLoad ? LevelVariantSets.TryLoad() : LevelVariantSets.ResolveObject());
}

void ALevelVariantSetsActor::SetLevelVariantSets(ULevelVariantSets* InVariantSets)
{
	Modify();
	LevelVariantSets = FSoftObjectPath(InVariantSets);
}
