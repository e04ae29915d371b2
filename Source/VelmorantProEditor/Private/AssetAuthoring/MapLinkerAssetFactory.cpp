// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/MapLinkerAssetFactory.h"

#include "VelmorantAssets.h"

UMapLinkerAssetFactory::UMapLinkerAssetFactory()
{
	SupportedClass = UVelmorantMapsLinkerConfig::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UMapLinkerAssetFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags);
}
