// Copyright Velmorant. All Rights Reserved.

#include "AssetAuthoring/MinimapDataAssetFactory.h"

#include "MinimapConfigAsset.h"

UMinimapDataAssetFactory::UMinimapDataAssetFactory()
{
	SupportedClass = UMinimapConfigAsset::StaticClass();
	bCreateNew = true;
	bEditAfterNew = true;
}

UObject* UMinimapDataAssetFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return NewObject<UObject>(InParent, InClass, InName, Flags);
}
