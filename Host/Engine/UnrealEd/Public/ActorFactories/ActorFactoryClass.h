// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ActorFactories/ActorFactory.h"
#include "CoreMinimal.h"
#include "ActorFactoryClass.generated.h"

/** For actors of a native class. */
UCLASS()
class UNREALED_API UActorFactoryClass : public UActorFactory
{
	GENERATED_BODY()

public:
	//~ Begin UActorFactory
	virtual UClass* GetDefaultActorClass(const FAssetData& AssetData) override;
	//~ End UActorFactory
};
