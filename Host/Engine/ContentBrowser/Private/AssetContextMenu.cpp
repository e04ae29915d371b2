// Copyright Velmorant. All Rights Reserved.

#include "AssetContextMenu.h"

#include "ContentBrowserMenuContexts.h"
#include "ToolMenus.h"
#include "UObject/Class.h"

namespace AssetContextMenu
{
	const FName BaseMenu("ContentBrowser.AssetContextMenu");
}

FName AssetContextMenu::NameFor(const UClass* AssetClass)
{
	return FName(*(BaseMenu.ToString() + TEXT(".") + AssetClass->GetName()));
}

void AssetContextMenu::Register(const UClass* AssetClass)
{
	UToolMenus* ToolMenus = UToolMenus::Get();
	if (!ToolMenus->IsMenuRegistered(BaseMenu))
	{
		ToolMenus->RegisterMenu(BaseMenu);
	}
	for (const UClass* Class = AssetClass; Class != nullptr; Class = Class->GetSuperClass())
	{
		if (!ToolMenus->IsMenuRegistered(NameFor(Class)))
		{
			ToolMenus->RegisterMenu(NameFor(Class), Class->GetSuperClass() != nullptr ? NameFor(Class->GetSuperClass()) : BaseMenu);
		}
	}
}

UClass* AssetContextMenu::CommonClass(const TArray<FAssetData>& Assets)
{
	UClass* Common = nullptr;
	for (const FAssetData& Asset : Assets)
	{
		UClass* Class = Asset.GetClass(EResolveClass::Yes);
		if (Class == nullptr)
		{
			return nullptr;
		}
		Common = Common != nullptr ? Common : Class;
		while (!Class->IsChildOf(Common))
		{
			Common = Common->GetSuperClass();
		}
	}
	return Common;
}

UToolMenu* UE::ContentBrowser::ExtendToolMenu_AssetContextMenu(UClass* AssetClass)
{
	check(AssetClass != nullptr);
	return UToolMenus::Get()->ExtendMenu(AssetContextMenu::NameFor(AssetClass));
}
