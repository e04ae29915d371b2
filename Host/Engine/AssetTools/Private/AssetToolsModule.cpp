// Copyright Velmorant. All Rights Reserved.

#include "AssetToolsModule.h"

#include "AssetToolsImpl.h"

FAssetToolsModule::FAssetToolsModule() = default;
FAssetToolsModule::~FAssetToolsModule() = default;

void FAssetToolsModule::StartupModule()
{
	AssetTools = MakeUnique<FAssetToolsImpl>();
}

IAssetTools& FAssetToolsModule::Get() const
{
	check(AssetTools.IsValid());
	return *AssetTools;
}

FAssetToolsModule& FAssetToolsModule::GetModule()
{
	return FModuleManager::LoadModuleChecked<FAssetToolsModule>(FName("AssetTools"));
}

IAssetTools& IAssetTools::Get()
{
	return FAssetToolsModule::GetModule().Get();
}

IMPLEMENT_MODULE(FAssetToolsModule, AssetTools)
