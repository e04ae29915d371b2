// Copyright Velmorant. All Rights Reserved.

#include "UnitVolumes/UnitVolumeClashes.h"

#include "ServiceData/VelmorantServiceNames.h"
#include "UnitVolumeActor.h"

namespace UnitVolumeClashes
{
	using FIdentifiers = TArray<const FUnitVolumeUniqueIdentifier*>;

	/** Indices of volumes that clash with one another, in their order; at least two. */
	using FClash = TArray<int32>;

	/** Volumes with equal keys clash. Refers to the volume's identifier. */
	struct FClashKey
	{
		bool operator==(const FClashKey& Other) const
		{
			return Identifier->UnitID == Other.Identifier->UnitID && Identifier->Keycode.Equals(Other.Identifier->Keycode, ESearchCase::IgnoreCase);
		}

		friend uint32 GetTypeHash(const FClashKey& Key)
		{
			return HashCombine(GetTypeHash(Key.Identifier->UnitID), GetTypeHash(Key.Identifier->Keycode)); // the string's hash ignores case, too
		}

		const FUnitVolumeUniqueIdentifier* Identifier;
	};

	/**
	 * Indices of volumes whose integer another one has, too. In a large level these are few: the key codes of the others need not be
	 * read, and reading what is not in the processor's cache is what takes the time here.
	 */
	TArray<int32> FindWithSharedUnitID(const FIdentifiers& Identifiers)
	{
		TMap<int32, int32> NumByUnitID;
		NumByUnitID.Reserve(Identifiers.Num());
		TArray<int32> UnitIDs;
		UnitIDs.Reserve(Identifiers.Num());
		for (const FUnitVolumeUniqueIdentifier* Identifier : Identifiers)
		{
			UnitIDs.Add(Identifier->UnitID);
			++NumByUnitID.FindOrAdd(UnitIDs.Last());
		}

		TArray<int32> Shared;
		for (int32 Index = 0; Index < Identifiers.Num(); ++Index)
		{
			if (NumByUnitID.FindRef(UnitIDs[Index]) > 1)
			{
				Shared.Add(Index);
			}
		}
		return Shared;
	}

	TArray<FClash> FindClashes(const FIdentifiers& Identifiers)
	{
		struct FAlike
		{
			int32 First = INDEX_NONE;
			int32 Clash = INDEX_NONE; // most keys are nobody else's and have none
		};
		TMap<FClashKey, FAlike> AlikeByKey;

		TArray<FClash> Clashes;
		for (const int32 Index : FindWithSharedUnitID(Identifiers))
		{
			FAlike& Alike = AlikeByKey.FindOrAdd(FClashKey{Identifiers[Index]});
			if (Alike.First == INDEX_NONE)
			{
				Alike.First = Index;
				continue;
			}
			if (Alike.Clash == INDEX_NONE)
			{
				Alike.Clash = Clashes.Add({Alike.First});
			}
			Clashes[Alike.Clash].Add(Index);
		}
		return Clashes;
	}

	/** By volume: the clash that it claims; none for most. */
	TArray<const FClash*> FindClaims(const FIdentifiers& Identifiers, const TArray<FClash>& Clashes)
	{
		TArray<const FClash*> Claims;
		Claims.SetNumZeroed(Identifiers.Num());
		for (const FClash& Clash : Clashes)
		{
			if (const int32* Claimant = Clash.FindByPredicate([&Identifiers](int32 Index) { return Identifiers[Index]->HasValidKeycode(); }))
			{
				Claims[*Claimant] = &Clash;
			}
		}
		return Claims;
	}

	void Join(TArray<int32>& Volumes, int32 Claimant, const FClash& Clash)
	{
		Volumes.Add(Claimant);
		for (const int32 Index : Clash)
		{
			if (Index != Claimant)
			{
				Volumes.Add(Index);
			}
		}
	}
}

TArray<UnitVolumeClashes::FGroup> UnitVolumeClashes::Find(const TArray<const FUnitVolumeUniqueIdentifier*>& Identifiers)
{
	const TArray<FClash> Clashes = FindClashes(Identifiers);
	const TArray<const FClash*> Claims = FindClaims(Identifiers, Clashes);

	TArray<FGroup> Groups;
	TMap<FName, int32> GroupByKeycode;
	for (int32 Claimant = 0; Claimant < Identifiers.Num(); ++Claimant)
	{
		const FClash* Clash = Claims[Claimant];
		if (!Clash)
		{
			continue;
		}

		const FName Keycode = VelmorantServiceNames::Make(Identifiers[Claimant]->Keycode);
		int32* Group = GroupByKeycode.Find(Keycode);
		if (!Group)
		{
			Group = &GroupByKeycode.Add(Keycode, Groups.Add({Keycode, {}}));
		}
		Join(Groups[*Group].Volumes, Claimant, *Clash);
	}
	return Groups;
}
