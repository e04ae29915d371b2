// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "UnitVolumeActor.h"

/**
 * The duplicate check of the unit volumes as it is told in words: every volume is compared with those after it that nobody has
 * claimed. What must be found, in time that grows with the square of the number of volumes.
 */
class FPairwiseClashes
{
public:
	using FIdentifiers = TArray<const FUnitVolumeUniqueIdentifier*>;

	explicit FPairwiseClashes(const FIdentifiers& Volumes)
	{
		FIdentifiers Open = Volumes;
		for (const FUnitVolumeUniqueIdentifier* Volume : Volumes)
		{
			if (!Volume->HasValidKeycode())
			{
				continue;
			}
			for (int32 Index = 0; Index < Open.Num();)
			{
				const FUnitVolumeUniqueIdentifier* Other = Open[Index];
				if (Other == Volume || !Clash(*Other, *Volume))
				{
					++Index;
					continue;
				}
				FIdentifiers& Group = Groups.FindOrAdd(FName(Volume->Keycode));
				Group.AddUnique(Volume);
				Group.AddUnique(Other);
				Open.Remove(Other);
			}
			Open.Remove(Volume);
		}
	}

	const TMap<FName, FIdentifiers>& GetGroups() const { return Groups; }

private:
	static bool Clash(const FUnitVolumeUniqueIdentifier& Left, const FUnitVolumeUniqueIdentifier& Right)
	{
		return Left.UnitID == Right.UnitID && Left.Keycode.Equals(Right.Keycode, ESearchCase::IgnoreCase);
	}

	TMap<FName, FIdentifiers> Groups;
};
