// Copyright Velmorant. All Rights Reserved.

#include "ContentBrowserMenuContexts.h"

#include "UObject/Class.h"

TArray<UObject*> UContentBrowserAssetContextMenuContext::LoadSelectedObjects(TSet<FName> LoadTags) const
{
	return LoadSelectedObjectsIf(UObject::StaticClass(), LoadTags);
}

TArray<UObject*> UContentBrowserAssetContextMenuContext::LoadSelectedObjectsIf(const UClass* AssetClass, const TSet<FName>&) const
{
	TArray<UObject*> Objects;
	for (const FAssetData& Asset : SelectedAssets)
	{
		const UClass* Class = Asset.GetClass();
		if (Class != nullptr && !Class->IsChildOf(AssetClass))
		{
			continue; // known to be of another type: not worth loading
		}
		UObject* Object = Asset.GetAsset();
		if (Object != nullptr && Object->IsA(AssetClass))
		{
			Objects.Add(Object);
		}
	}
	return Objects;
}
