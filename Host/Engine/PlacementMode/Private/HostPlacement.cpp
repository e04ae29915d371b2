// Copyright Velmorant. All Rights Reserved.

#include "HostPlacement.h"

#include "Editor.h"
#include "Engine/World.h"
#include "PlacementModeModule.h"
#include "ScopedTransaction.h"
#include "UObject/UObjectHash.h"

#define LOCTEXT_NAMESPACE "HostPlacement"

namespace HostPlacement
{
	const FPlacementModeModule* GetModule()
	{
		return static_cast<const FPlacementModeModule*>(FModuleManager::GetModulePtr<IPlacementModeModule>("PlacementMode"));
	}

	/** The item's own factory, or the first that can place its asset. Null when none can. */
	UActorFactory* FindFactory(const FPlaceableItem& Item)
	{
		if (Item.Factory != nullptr)
		{
			return Item.Factory;
		}
		TArray<UClass*> Classes;
		GetDerivedClasses(UActorFactory::StaticClass(), Classes);
		for (const UClass* Class : Classes)
		{
			UActorFactory* Factory = Cast<UActorFactory>(Class->GetDefaultObject());
			if (!Class->HasAnyClassFlags(CLASS_Abstract) && Factory->CanPlaceElementsFromAssetData(Item.AssetData))
			{
				return Factory;
			}
		}
		return nullptr;
	}
}

TArray<FName> HostPlacement::GetCategories()
{
	TArray<FName> Handles;
	if (const FPlacementModeModule* Module = GetModule())
	{
		TArray<FPlacementModeModule::FCategory> Categories = Module->GetCategories();
		Categories.StableSort([](const auto& Left, const auto& Right) { return Left.Info.SortOrder < Right.Info.SortOrder; });
		for (const FPlacementModeModule::FCategory& Category : Categories)
		{
			Handles.Add(Category.Info.UniqueHandle);
		}
	}
	return Handles;
}

TArray<TSharedRef<FPlaceableItem>> HostPlacement::GetItems(FName Handle)
{
	TArray<TSharedRef<FPlaceableItem>> Items;
	const FPlacementModeModule* Module = GetModule();
	const FPlacementModeModule::FCategory* Category = Module != nullptr ? Module->FindCategory(Handle) : nullptr;
	if (Category != nullptr)
	{
		for (const FPlacementModeModule::FItem& Item : Category->Items)
		{
			Items.Add(Item.Item);
		}
		const bool bByName = Category->Info.bSortable;
		Items.StableSort([bByName](const TSharedRef<FPlaceableItem>& Left, const TSharedRef<FPlaceableItem>& Right) {
			return bByName ? Left->DisplayName.CompareTo(Right->DisplayName) < 0 : Left->SortOrder.Get(0) < Right->SortOrder.Get(0);
		});
	}
	return Items;
}

AActor* HostPlacement::Place(const FPlaceableItem& Item, const FTransform& Transform, FText& OutReason)
{
	UWorld* World = GEditor != nullptr ? GEditor->GetEditorWorldContext().World() : nullptr;
	if (World == nullptr)
	{
		OutReason = LOCTEXT("NoLevel", "No level is open.");
		return nullptr;
	}
	UActorFactory* Factory = FindFactory(Item);
	if (Factory == nullptr)
	{
		OutReason = FText::Format(LOCTEXT("NoFactory", "Nothing makes actors of {0}."), FText::FromString(Item.AssetData.GetObjectPathString()));
		return nullptr;
	}
	if (!Factory->CanCreateActorFrom(Item.AssetData, OutReason))
	{
		return nullptr;
	}
	const FScopedTransaction Step(FText::Format(LOCTEXT("Place", "Place {0}"), Item.DisplayName));
	AActor* Actor = Factory->CreateActor(Item.AssetData.GetAsset(), World->GetCurrentLevel(), Transform);
	if (Actor == nullptr)
	{
		OutReason = FText::Format(LOCTEXT("NotSpawned", "{0} could not be spawned; the log tells why."), Item.DisplayName);
		return nullptr;
	}
	GEditor->SelectNone(false, true);
	GEditor->SelectActor(Actor, true, true);
	return Actor;
}

#undef LOCTEXT_NAMESPACE
