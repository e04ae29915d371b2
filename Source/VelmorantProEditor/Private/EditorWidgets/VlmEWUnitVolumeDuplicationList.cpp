// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"

#include "EngineUtils.h"
#include "UnitVolumeActor.h"
#include "UObject/Package.h"
#include "ServiceData/VelmorantServiceNames.h"

namespace VlmEWUnitVolumeDuplicationList
{
	/** Volumes with equal keys clash: the same integer, and the same key code but for letter case. Refers to the volume's identifier. */
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

	/** Indices of volumes that clash with one another, in their order; at least two. */
	using FClash = TArray<int32>;

	/**
	 * Indices of volumes whose integer another one has, too. In a large level these are few: the key codes of the others need not be
	 * read, and reading what is not in the processor's cache is what takes the time here.
	 */
	TArray<int32> FindWithSharedUnitID(const TArray<AUnitVolumeActor*>& Volumes)
	{
		TMap<int32, int32> NumByUnitID;
		NumByUnitID.Reserve(Volumes.Num());
		TArray<int32> UnitIDs;
		UnitIDs.Reserve(Volumes.Num());
		for (const AUnitVolumeActor* Volume : Volumes)
		{
			UnitIDs.Add(Volume->UniqueIdentifier.UnitID);
			++NumByUnitID.FindOrAdd(UnitIDs.Last());
		}

		TArray<int32> Shared;
		for (int32 Index = 0; Index < Volumes.Num(); ++Index)
		{
			if (NumByUnitID.FindRef(UnitIDs[Index]) > 1)
			{
				Shared.Add(Index);
			}
		}
		return Shared;
	}

	TArray<FClash> FindClashes(const TArray<AUnitVolumeActor*>& Volumes)
	{
		struct FAlike
		{
			int32 First = INDEX_NONE;
			int32 Clash = INDEX_NONE; // most keys are nobody else's and have none
		};
		TMap<FClashKey, FAlike> AlikeByKey;

		TArray<FClash> Clashes;
		for (const int32 Index : FindWithSharedUnitID(Volumes))
		{
			FAlike& Alike = AlikeByKey.FindOrAdd(FClashKey{&Volumes[Index]->UniqueIdentifier});
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
}

void UVlmEWUnitVolumeDuplicationList::CheckForDuplications()
{
	GroupClashes(FindVolumes());
	OnDuplicationsList(MakeItems());
}

TArray<AUnitVolumeActor*> UVlmEWUnitVolumeDuplicationList::FindVolumes() const
{
	TArray<AUnitVolumeActor*> Volumes;
	if (const UWorld* World = GetWorld())
	{
		for (TActorIterator<AUnitVolumeActor> Volume(World); Volume; ++Volume)
		{
			Volumes.Add(*Volume);
		}
	}
	return Volumes;
}

void UVlmEWUnitVolumeDuplicationList::GroupClashes(const TArray<AUnitVolumeActor*>& Volumes)
{
	using namespace VlmEWUnitVolumeDuplicationList;

	// The first volume with a valid key code claims all that clash with it, wherever they stand; without one nobody is claimed.
	const TArray<FClash> Clashes = FindClashes(Volumes);
	TArray<const FClash*> ClashByClaimant;
	ClashByClaimant.SetNumZeroed(Volumes.Num());
	for (const FClash& Clash : Clashes)
	{
		if (const int32* Claimant = Clash.FindByPredicate([&Volumes](int32 Index) { return Volumes[Index]->UniqueIdentifier.HasValidKeycode(); }))
		{
			ClashByClaimant[*Claimant] = &Clash;
		}
	}

	// Groups come in the order of the claimants, and each begins with its claimant.
	for (int32 Claimant = 0; Claimant < Volumes.Num(); ++Claimant)
	{
		if (const FClash* Clash = ClashByClaimant[Claimant])
		{
			FGroup& Group = Groups.FindOrAdd(VelmorantServiceNames::Make(Volumes[Claimant]->UniqueIdentifier.Keycode));
			Group.Add(Volumes[Claimant]);
			for (const int32 Index : *Clash)
			{
				Group.Add(Volumes[Index]);
			}
		}
	}
}

TArray<UVlmEWUnitVolumeDuplication_Item*> UVlmEWUnitVolumeDuplicationList::MakeItems() const
{
	TArray<UVlmEWUnitVolumeDuplication_Item*> Items;
	for (const TPair<FName, FGroup>& Group : Groups)
	{
		UVlmEWUnitVolumeDuplication_Item* Item = NewObject<UVlmEWUnitVolumeDuplication_Item>(GetTransientPackage());
		Item->Identifier = Group.Key;
		for (const TWeakObjectPtr<AUnitVolumeActor>& Volume : Group.Value)
		{
			if (Volume.IsValid())
			{
				Item->DuplicateActors.Add(Volume.Get());
			}
		}
		Items.Add(Item);
	}
	return Items;
}
