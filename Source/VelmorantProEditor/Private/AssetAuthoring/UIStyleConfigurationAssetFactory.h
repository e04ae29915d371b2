// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "UIStyleConfigurationAssetFactory.generated.h"

/** Makes UI style configurations. */
UCLASS()
class UUIStyleConfigurationAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UUIStyleConfigurationAssetFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
