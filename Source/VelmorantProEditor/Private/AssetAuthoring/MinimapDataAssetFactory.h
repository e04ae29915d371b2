// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "MinimapDataAssetFactory.generated.h"

/** Makes minimap configurations. Passes the caller's flags through unchanged, on purpose. */
UCLASS()
class UMinimapDataAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UMinimapDataAssetFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
