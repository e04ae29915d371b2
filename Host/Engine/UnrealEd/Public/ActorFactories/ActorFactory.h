// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Engine/World.h"
#include "Factories/AssetFactoryInterface.h"
#include "UObject/Object.h"
#include "ActorFactory.generated.h"

/** Puts actors made from an asset into a level. Host: placement items name their factory, nothing is dragged into a viewport. */
UCLASS(Abstract)
class UNREALED_API UActorFactory : public UObject, public IAssetFactoryInterface
{
	GENERATED_BODY()

public:
	/** Whether it can make an actor of such an asset; if not, OutErrorMsg tells a person why. May load the asset. */
	virtual bool CanCreateActorFrom(const FAssetData& AssetData, FText& OutErrorMsg);

	/** Spawns the actor for an asset that CanCreateActorFrom() accepts. Null when nothing was spawned; the log tells why. */
	AActor* CreateActor(UObject* InAsset, ULevel* InLevel, FTransform InTransform, const FActorSpawnParameters& InSpawnParams = FActorSpawnParameters());

	/** Of which class the actor will be; null for what it cannot make actors of. */
	virtual UClass* GetDefaultActorClass(const FAssetData& AssetData);

	//~ Begin IAssetFactoryInterface
	virtual bool CanPlaceElementsFromAssetData(const FAssetData& InAssetData) override;
	//~ End IAssetFactoryInterface
};
