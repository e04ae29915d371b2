// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "ConfiguratorItemOverrideFactory.generated.h"

/** Makes configurator item overrides. */
UCLASS()
class UConfiguratorItemOverrideFactory : public UFactory
{
	GENERATED_BODY()

public:
	UConfiguratorItemOverrideFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
