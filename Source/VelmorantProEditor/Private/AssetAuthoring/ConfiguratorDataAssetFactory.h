// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "ConfiguratorDataAssetFactory.generated.h"

/** Makes configurator data assets. */
UCLASS()
class UConfiguratorDataAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UConfiguratorDataAssetFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
