// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/ConfiguratorItemOverrideFactory.h"

#include "VelmorantAssets.h"

UConfiguratorItemOverrideFactory::UConfiguratorItemOverrideFactory()
{
	SupportedClass = UVelmorantConfiguratorItemOverride::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UConfiguratorItemOverrideFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags | RF_Transactional);
}
