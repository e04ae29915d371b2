// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ConfiguratorDataAssetFactory.h"

#include "VelmorantConfiguratorDataAsset.h"

UConfiguratorDataAssetFactory::UConfiguratorDataAssetFactory()
{
	SupportedClass = UVelmorantConfiguratorDataAsset::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UConfiguratorDataAssetFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags | RF_Transactional);
}
