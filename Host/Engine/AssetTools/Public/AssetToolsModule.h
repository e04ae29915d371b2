// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Templates/UniquePtr.h"

class FAssetToolsImpl;

/** Owns the asset tools of the running editor. */
class ASSETTOOLS_API FAssetToolsModule : public IModuleInterface
{
public:
	FAssetToolsModule();
	virtual ~FAssetToolsModule() override;

	virtual IAssetTools& Get() const;

	static FAssetToolsModule& GetModule();

	//~ Begin IModuleInterface
	virtual void StartupModule() override;
	//~ End IModuleInterface

private:
	TUniquePtr<FAssetToolsImpl> AssetTools;
};
