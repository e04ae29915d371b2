// Copyright Velmorant. All Rights Reserved.

#include "AssetDefinition.h"
#include "AssetToolsImpl.h"
#include "AssetToolsModule.h"
#include "Engine/DataAsset.h"
#include "Factories/Factory.h"
#include "HostAssetDefinitions.h"
#include "HostAssetTools.h"
#include "IAssetTypeActions.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

namespace NewAssetMenu
{
	FAssetToolsImpl& GetTools()
	{
		return static_cast<FAssetToolsImpl&>(IAssetTools::Get());
	}

	TArray<UFactory*> GetFactories()
	{
		TArray<UClass*> Classes;
		GetDerivedClasses(UFactory::StaticClass(), Classes, true);
		TArray<UFactory*> Factories;
		for (const UClass* Class : Classes)
		{
			UFactory* Factory = Class->HasAnyClassFlags(CLASS_Abstract) ? nullptr : Class->GetDefaultObject<UFactory>();
			if (Factory != nullptr && Factory->ShouldShowInNewMenu() && Factory->GetSupportedClass() != nullptr)
			{
				Factories.Add(Factory);
			}
		}
		return Factories;
	}

	/** A new factory for exactly this class; null when the menu has none. */
	UFactory* MakeFactory(const UClass& AssetClass)
	{
		for (const UFactory* Factory : GetFactories())
		{
			if (Factory->GetSupportedClass() == &AssetClass)
			{
				return NewObject<UFactory>(GetTransientPackage(), Factory->GetClass());
			}
		}
		return nullptr;
	}

	/** Those of exactly this class; null when its parents at most have some. */
	TSharedPtr<IAssetTypeActions> FindOwnActions(const UClass* Class)
	{
		const TSharedPtr<IAssetTypeActions> Actions = GetTools().GetAssetTypeActionsForClass(Class).Pin();
		return Actions.IsValid() && Actions->GetSupportedClass() == Class ? Actions : TSharedPtr<IAssetTypeActions>();
	}

	/** A definition of the class wins over type actions, these over what the factory says of itself. */
	void AddItems(UFactory* Factory, TArray<HostAssetTools::FNewAssetItem>& Items)
	{
		UClass* AssetClass = Factory->GetSupportedClass();
		if (const UAssetDefinition* Definition = HostAssetDefinitions::FindExact(AssetClass))
		{
			for (const FAssetCategoryPath& Category : Definition->GetAssetCategories())
			{
				Items.Add({Definition->GetAssetDisplayName(), Category.GetCategoryText(), Category.GetSubCategoryText(), Definition->GetAssetColor(),
					AssetClass, Factory});
			}
			return;
		}
		const TSharedPtr<IAssetTypeActions> Actions = FindOwnActions(AssetClass);
		const bool bOwnActions = Actions.IsValid();
		const uint32 Mask = bOwnActions ? Actions->GetCategories() : uint32(EAssetTypeCategories::Misc);
		for (const FText& Category : GetTools().GetCategories().GetDisplayNames(Mask))
		{
			Items.Add({bOwnActions ? Actions->GetName() : Factory->GetDisplayName(), Category, FText::GetEmpty(),
				bOwnActions ? FLinearColor(Actions->GetTypeColor()) : FLinearColor::White, AssetClass, Factory});
		}
	}

	FString SortKey(const HostAssetTools::FNewAssetItem& Item)
	{
		const FString Separator(TEXT("\n")); // below every character of a name
		return (Item.Category.ToString() + Separator + Item.SubCategory.ToString() + Separator + Item.DisplayName.ToString() + Separator +
			Item.DefaultFactory->GetClass()->GetName())
			.ToLower();
	}
}

TArray<HostAssetTools::FAdvancedCategory> HostAssetTools::GetAdvancedCategories()
{
	return NewAssetMenu::GetTools().GetCategories().GetAll();
}

TArray<HostAssetTools::FNewAssetItem> HostAssetTools::GetNewAssetMenu()
{
	TArray<FNewAssetItem> Items;
	for (UFactory* Factory : NewAssetMenu::GetFactories())
	{
		NewAssetMenu::AddItems(Factory, Items);
	}
	Items.Sort([](const FNewAssetItem& Left, const FNewAssetItem& Right) {
		return NewAssetMenu::SortKey(Left).Compare(NewAssetMenu::SortKey(Right)) < 0;
	});
	return Items;
}

UObject* HostAssetTools::CreateFromMenu(const FNewAssetItem& Item, const FString& Folder)
{
	UFactory* Factory = NewObject<UFactory>(GetTransientPackage(), Item.DefaultFactory->GetClass());
	return NewAssetMenu::GetTools().CreateInFolder(Item.AssetClass, Factory, Folder);
}

UObject* HostAssetTools::MakeAsset(UClass& AssetClass, const FString& Folder, const FString& Name, FString& OutReason)
{
	UFactory* Factory = NewAssetMenu::MakeFactory(AssetClass);
	const bool bPlain = AssetClass.IsChildOf(UDataAsset::StaticClass()) && !AssetClass.HasAnyClassFlags(CLASS_Abstract);
	if (Factory == nullptr && !bPlain)
	{
		OutReason = FString::Printf(TEXT("the editor makes no assets of the class %s"), *AssetClass.GetName());
		OutReason += FString::Printf(TEXT("; it makes data assets and: %s"), *FString::JoinBy(NewAssetMenu::GetFactories(), TEXT(", "), [](const UFactory* Each) { return Each->GetSupportedClass()->GetName(); }));
		return nullptr;
	}
	const bool bGoOn = Factory == nullptr || Factory->ConfigureProperties();
	UObject* Asset = bGoOn ? NewAssetMenu::GetTools().CreateAsset(Name, Folder, &AssetClass, Factory, NAME_None) : nullptr;
	if (Asset == nullptr)
	{
		OutReason = FString::Printf(TEXT("%s cannot be made in the folder \"%s\"; the log says why"), *Name, *Folder);
	}
	return Asset;
}

HostAssetTools::FAssetKind HostAssetTools::FindKind(const UClass* AssetClass)
{
	for (const UClass* Class = AssetClass; Class != nullptr; Class = Class->GetSuperClass())
	{
		if (const UAssetDefinition* Definition = HostAssetDefinitions::FindExact(Class))
		{
			return {Definition->GetAssetDisplayName(), Definition->GetAssetColor()};
		}
		if (const TSharedPtr<IAssetTypeActions> Actions = NewAssetMenu::FindOwnActions(Class))
		{
			return {Actions->GetName(), FLinearColor(Actions->GetTypeColor())};
		}
	}
	return {AssetClass->GetDisplayNameText(), FLinearColor::Gray};
}
