// Copyright Velmorant. All Rights Reserved.

#include "Support/TestPackage.h"

#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "UObject/UObjectHash.h"

FVelmorantTestContent::FVelmorantTestContent()
{
	static int32 Number = 0;
	Folder = FString::Printf(TEXT("/Temp/VelmorantTests%d"), ++Number);
}

FVelmorantTestContent::~FVelmorantTestContent()
{
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssetsByPath(FName(*Folder), Assets, true);
	for (const FAssetData& Asset : Assets)
	{
		if (UObject* Object = Asset.FastGetAsset(false))
		{
			FAssetRegistryModule::AssetDeleted(Object);
			Object->GetPackage()->SetDirtyFlag(false);
			Object->ClearFlags(RF_Public | RF_Standalone);
			Object->MarkAsGarbage();
		}
	}
}

UObject* FVelmorantTestContent::Make(UClass* Class, const TCHAR* Name) const
{
	UPackage* Package = CreatePackage(*GetPackageName(Name));
	UObject* Asset = NewObject<UObject>(Package, Class, Name, RF_Public | RF_Standalone | RF_Transactional);
	FAssetRegistryModule::AssetCreated(Asset);
	Package->SetDirtyFlag(false);
	return Asset;
}
