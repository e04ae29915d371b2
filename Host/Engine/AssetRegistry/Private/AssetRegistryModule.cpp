// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetRegistryModule.h"

#include "AssetRegistryImpl.h"

FAssetRegistryModule::FAssetRegistryModule()
	: Registry(MakeUnique<FAssetRegistryImpl>())
{
}

FAssetRegistryModule::~FAssetRegistryModule() = default;

IAssetRegistry& FAssetRegistryModule::Get() const
{
	return *Registry;
}

IAssetRegistry& FAssetRegistryModule::GetRegistry()
{
	return FModuleManager::LoadModuleChecked<FAssetRegistryModule>(FName("AssetRegistry")).Get();
}

void FAssetRegistryModule::AssetCreated(UObject* NewAsset)
{
	GetRegistry().AssetCreated(NewAsset);
}

void FAssetRegistryModule::AssetDeleted(UObject* DeletedAsset)
{
	GetRegistry().AssetDeleted(DeletedAsset);
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	return FAssetRegistryModule::GetRegistry();
}

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)
