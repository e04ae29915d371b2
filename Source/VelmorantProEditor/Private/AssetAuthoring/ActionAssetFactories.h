// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "ActionAssetFactories.generated.h"

/** Names this unit in the reflection data; nothing else. */
UCLASS(config = Engine)
class UActionAssetFactories : public UObject
{
	GENERATED_BODY()
};

/** Makes Blueprints of interactive-spot actions, whatever class is asked for. */
UCLASS()
class UISPActionBaseFactory : public UFactory
{
	GENERATED_BODY()

public:
	UISPActionBaseFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};

/** Makes Blueprints of unit-volume actions, whatever class is asked for. */
UCLASS()
class UUnitVolumeActionFactory : public UFactory
{
	GENERATED_BODY()

public:
	UUnitVolumeActionFactory();

	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};
