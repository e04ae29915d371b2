// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetTypeCategories.h"
#include "CoreMinimal.h"
#include "Templates/Function.h"

class UClass;
class UFactory;
class UObject;

/** Looks into the asset tools of the running editor, and the seams to modules above them. */
namespace HostAssetTools
{
	/** A category registered at run time. */
	struct FAdvancedCategory
	{
		FName Key;
		FText DisplayName;
		EAssetTypeCategories::Type Bit;
	};

	/** In order of registration. */
	TArray<FAdvancedCategory> GetAdvancedCategories();

	/** One line of the menu of new assets. */
	struct FNewAssetItem
	{
		FText DisplayName;
		FText Category; // what the menu shows
		FText SubCategory; // empty without one
		FLinearColor Color;
		UClass* AssetClass; // what the factory supports
		UFactory* DefaultFactory; // the default object; make a new one to create with
	};

	/** All kinds of asset that a user can make: one per factory and category, ordered by category, sub-category and name. */
	TArray<FNewAssetItem> GetNewAssetMenu();

	/**
	 * Makes an asset as a pick from that menu does: with a new factory of the item's class, asking for name and folder.
	 * @param Folder what is proposed, "/Game/Dir"
	 */
	UObject* CreateFromMenu(const FNewAssetItem& Item, const FString& Folder = TEXT("/Game"));

	/**
	 * Makes an asset of a class without asking where: with the factory that the menu has for it, or plainly for a data asset, which the
	 * engine lets a person pick by class.
	 * @return null with a reason; what the asset tools have against it stands in the log
	 */
	UObject* MakeAsset(UClass& AssetClass, const FString& Folder, const FString& Name, FString& OutReason);

	/** How assets of a class are shown. */
	struct FAssetKind
	{
		FText DisplayName;
		FLinearColor Color;
	};

	/** As the definition of the nearest class says, else its type actions; without any, the class's own name in grey. */
	FAssetKind FindKind(const UClass* AssetClass);

	/** Who shows a new asset to the user; the content browser sets this when it starts up. Holds until the editor goes down. */
	void SetAssetShower(TFunction<void(const TArray<UObject*>&)> InShower);
}
