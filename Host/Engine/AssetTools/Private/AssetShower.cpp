// Copyright Velmorant. All Rights Reserved.

#include "AssetShower.h"

#include "HostAssetTools.h"
#include "HostState.h"
#include "Modules/ModuleManager.h"

namespace AssetShower
{
	/** The content browser stands above this module, so it hands itself in. */
	THostState<TFunction<void(const TArray<UObject*>&)>> Shower;
}

void HostAssetTools::SetAssetShower(TFunction<void(const TArray<UObject*>&)> InShower)
{
	AssetShower::Shower.Get() = MoveTemp(InShower);
}

void AssetShower::Show(const TArray<UObject*>& Assets)
{
	FModuleManager::Get().LoadModule(FName("ContentBrowser"));
	if (Shower.Get())
	{
		Shower.Get()(Assets);
	}
}
