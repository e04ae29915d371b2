// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/UIStyleConfigurationAssetFactory.h"

#include "VelmorantUIStyleConfiguration.h"

UUIStyleConfigurationAssetFactory::UUIStyleConfigurationAssetFactory()
{
	SupportedClass = UVelmorantUIStyleConfiguration::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UUIStyleConfigurationAssetFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags | RF_Transactional);
}
