// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "MapLinkerAssetFactory.generated.h"

/** Makes maps linker configurations. Passes the caller's flags through unchanged, on purpose. */
UCLASS()
class UMapLinkerAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UMapLinkerAssetFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
