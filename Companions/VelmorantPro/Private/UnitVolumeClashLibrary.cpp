// Copyright Velmorant. All Rights Reserved.

#include "UnitVolumeClashLibrary.h"

#include "EngineUtils.h"
#include "UnitVolumeActor.h"

namespace UnitVolumeClashLibrary
{
	/** Takes volumes one by one, and notes the key code of each that clashes with one before. Texts compare without letter case. */
	class FClashes
	{
	public:
		void Add(const AUnitVolumeActor& Volume)
		{
			const FUnitVolumeUniqueIdentifier& Identifier = Volume.UniqueIdentifier;
			bool bAlreadyThere = false;
			if (Identifier.HasValidKeycode())
			{
				Seen.Add(FString::Printf(TEXT("%d %s"), Identifier.UnitID, *Identifier.Keycode), &bAlreadyThere);
			}
			if (bAlreadyThere)
			{
				Keycodes.Add(Identifier.Keycode);
			}
		}

		int32 Num() const { return Keycodes.Num(); }

	private:
		TSet<FString> Seen; // number and key code
		TSet<FString> Keycodes;
	};
}

bool UUnitVolumeClashLibrary::DoVolumesClash(const TArray<AActor*>& Volumes)
{
	UnitVolumeClashLibrary::FClashes Clashes;
	for (const AActor* Actor : Volumes)
	{
		const AUnitVolumeActor* Volume = Cast<AUnitVolumeActor>(Actor);
		if (IsValid(Volume))
		{
			Clashes.Add(*Volume);
		}
	}
	return Clashes.Num() > 0;
}

int32 UUnitVolumeClashLibrary::CountClashingKeycodes(const UObject* WorldContextObject)
{
	UnitVolumeClashLibrary::FClashes Clashes;
	if (UWorld* World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr)
	{
		for (TActorIterator<AUnitVolumeActor> Volume(World); Volume; ++Volume)
		{
			Clashes.Add(**Volume);
		}
	}
	return Clashes.Num();
}
