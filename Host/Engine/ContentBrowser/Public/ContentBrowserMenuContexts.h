// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ContentBrowserMenuContexts.generated.h"

class UToolMenu;

enum class EIncludeSubclasses : uint8
{
	No,
	Yes,
};

/** What the context menu of assets in the content browser acts on: found in the context of the menu, its sections and its actions. */
UCLASS(MinimalAPI)
class UContentBrowserAssetContextMenuContext : public UObject
{
	GENERATED_BODY()

public:
	/** In the order in which the user selected them. */
	TArray<FAssetData> SelectedAssets;

	/** Null when there is no such context, or nothing is selected. Takes a menu, a section or a context. */
	template<typename MenuOrSectionType>
	static const UContentBrowserAssetContextMenuContext* FindContextWithAssets(const MenuOrSectionType& MenuOrSection)
	{
		const UContentBrowserAssetContextMenuContext* Context = MenuOrSection.template FindContext<UContentBrowserAssetContextMenuContext>();
		return Context != nullptr && !Context->SelectedAssets.IsEmpty() ? Context : nullptr;
	}

	/** The selected assets of one type, subclasses included, loaded, in the order of selection. What cannot be loaded is left out. */
	template<typename ExpectedAssetType>
	TArray<ExpectedAssetType*> LoadSelectedObjects(const TSet<FName>& LoadTags = TSet<FName>()) const
	{
		TArray<ExpectedAssetType*> Objects;
		for (UObject* Object : LoadSelectedObjectsIf(ExpectedAssetType::StaticClass(), LoadTags))
		{
			Objects.Add(static_cast<ExpectedAssetType*>(Object));
		}
		return Objects;
	}

	/** All selected assets, loaded. */
	UFUNCTION(BlueprintCallable, Category = "Tool Menus")
	TArray<UObject*> LoadSelectedObjects(TSet<FName> LoadTags) const;

private:
	CONTENTBROWSER_API TArray<UObject*> LoadSelectedObjectsIf(const UClass* AssetClass, const TSet<FName>& LoadTags) const;
};

namespace UE::ContentBrowser
{
	/** The context menu of assets of this class and the classes below it, for adding to. */
	CONTENTBROWSER_API UToolMenu* ExtendToolMenu_AssetContextMenu(UClass* AssetClass);
}
