// Copyright Velmorant. All Rights Reserved.

#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"

#include "EngineUtils.h"
#include "UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumeClashes.h"
#include "UObject/Package.h"

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
	TArray<const FUnitVolumeUniqueIdentifier*> Identifiers;
	Identifiers.Reserve(Volumes.Num());
	for (const AUnitVolumeActor* Volume : Volumes)
	{
		Identifiers.Add(&Volume->UniqueIdentifier);
	}

	for (const UnitVolumeClashes::FGroup& Found : UnitVolumeClashes::Find(Identifiers))
	{
		FGroup& Group = Groups.FindOrAdd(Found.Keycode);
		for (const int32 Index : Found.Volumes)
		{
			Group.Add(Volumes[Index]);
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
