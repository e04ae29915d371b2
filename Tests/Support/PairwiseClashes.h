// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UnitVolumeActor.h"

/**
 * The duplicate check of the unit volumes as it is told in words: every volume is compared with those after it that nobody has
 * claimed. What the panel must find, in time that grows with the square of the number of volumes.
 */
class FPairwiseClashes
{
public:
	/** Adds to what earlier checks found. */
	void Check(const TArray<AUnitVolumeActor*>& Volumes)
	{
		TArray<AUnitVolumeActor*> Open = Volumes;
		for (AUnitVolumeActor* Volume : Volumes)
		{
			if (!Volume->UniqueIdentifier.HasValidKeycode())
			{
				continue;
			}
			for (int32 Index = 0; Index < Open.Num();)
			{
				AUnitVolumeActor* Other = Open[Index];
				if (Other == Volume || !Clash(*Other, *Volume))
				{
					++Index;
					continue;
				}
				TArray<AUnitVolumeActor*>& Group = Groups.FindOrAdd(FName(Volume->UniqueIdentifier.Keycode));
				Group.AddUnique(Volume);
				Group.AddUnique(Other);
				Open.Remove(Other);
			}
			Open.Remove(Volume);
		}
	}

	const TMap<FName, TArray<AUnitVolumeActor*>>& GetGroups() const { return Groups; }

private:
	static bool Clash(const AUnitVolumeActor& Left, const AUnitVolumeActor& Right)
	{
		return Left.UniqueIdentifier.UnitID == Right.UniqueIdentifier.UnitID && Left.UniqueIdentifier.Keycode.Equals(Right.UniqueIdentifier.Keycode, ESearchCase::IgnoreCase);
	}

	TMap<FName, TArray<AUnitVolumeActor*>> Groups;
};
