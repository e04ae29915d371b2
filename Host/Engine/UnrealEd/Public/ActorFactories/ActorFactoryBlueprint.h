// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ActorFactories/ActorFactory.h"
#include "CoreMinimal.h"
#include "ActorFactoryBlueprint.generated.h"

/** For actors whose class is a Blueprint. */
UCLASS()
class UNREALED_API UActorFactoryBlueprint : public UActorFactory
{
	GENERATED_BODY()

public:
	//~ Begin UActorFactory
	virtual bool CanCreateActorFrom(const FAssetData& AssetData, FText& OutErrorMsg) override;
	virtual UClass* GetDefaultActorClass(const FAssetData& AssetData) override;
	//~ End UActorFactory
};
