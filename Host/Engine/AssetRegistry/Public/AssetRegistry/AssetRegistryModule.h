// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Templates/UniquePtr.h"

/** Owns the asset registry of the running editor. */
class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	FAssetRegistryModule();
	virtual ~FAssetRegistryModule() override;

	virtual IAssetRegistry& Get() const;

	static IAssetRegistry& GetRegistry();

	/** To be called by whoever made an asset, once it is complete. Null is ignored. */
	static void AssetCreated(UObject* NewAsset);

	/** To be called before an asset is given up. */
	static void AssetDeleted(UObject* DeletedAsset);

private:
	TUniquePtr<IAssetRegistry> Registry;
};
