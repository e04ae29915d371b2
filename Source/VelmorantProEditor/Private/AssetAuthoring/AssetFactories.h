// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "AssetFactories.generated.h"

/** Names this unit in the reflection data; nothing else. */
UCLASS(config = Engine)
class UActionAssetFactories : public UObject
{
	GENERATED_BODY()
};

/** A factory whose assets are offered as new ones and opened once made. */
UCLASS(Abstract)
class UVelmorantAssetFactory : public UFactory
{
	GENERATED_BODY()

public:
	UVelmorantAssetFactory();
};

/** Makes objects of the class that is asked for. */
UCLASS(Abstract)
class UVelmorantObjectFactory : public UVelmorantAssetFactory
{
	GENERATED_BODY()

public:
	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory

protected:
	/** Joins the caller's flags. */
	EObjectFlags AddedFlags = RF_NoFlags;
};

/** Makes Blueprints of the supported class, whatever class is asked for. */
UCLASS(Abstract)
class UVelmorantBlueprintFactory : public UVelmorantAssetFactory
{
	GENERATED_BODY()

public:
	//~ Begin UFactory
	virtual UObject* FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject* Context, FFeedbackContext* Warn) override;
	//~ End UFactory
};

/** Configurator data assets. */
UCLASS()
class UConfiguratorDataAssetFactory : public UVelmorantObjectFactory
{
	GENERATED_BODY()

public:
	UConfiguratorDataAssetFactory();
};

/** Configurator item overrides. */
UCLASS()
class UConfiguratorItemOverrideFactory : public UVelmorantObjectFactory
{
	GENERATED_BODY()

public:
	UConfiguratorItemOverrideFactory();
};

/** UI style configurations. */
UCLASS()
class UUIStyleConfigurationAssetFactory : public UVelmorantObjectFactory
{
	GENERATED_BODY()

public:
	UUIStyleConfigurationAssetFactory();
};

/** Maps linker configurations. Passes the caller's flags through unchanged, on purpose. */
UCLASS()
class UMapLinkerAssetFactory : public UVelmorantObjectFactory
{
	GENERATED_BODY()

public:
	UMapLinkerAssetFactory();
};

/** Minimap configurations. Passes the caller's flags through unchanged, on purpose. */
UCLASS()
class UMinimapDataAssetFactory : public UVelmorantObjectFactory
{
	GENERATED_BODY()

public:
	UMinimapDataAssetFactory();
};

/** Interactive-spot actions. */
UCLASS()
class UISPActionBaseFactory : public UVelmorantBlueprintFactory
{
	GENERATED_BODY()

public:
	UISPActionBaseFactory();
};

/** Unit-volume actions. */
UCLASS()
class UUnitVolumeActionFactory : public UVelmorantBlueprintFactory
{
	GENERATED_BODY()

public:
	UUnitVolumeActionFactory();
};
