// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetTypeCategories.h"
#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "UObject/WeakObjectPtrTemplates.h"

class IAssetTypeActions;
class UClass;
class UFactory;
class UObject;

/** Another name or folder for an asset. */
struct FAssetRenameData
{
	TWeakObjectPtr<UObject> Asset;
	FString NewPackagePath; // the folder, "/Game/Dir"
	FString NewName;

	FAssetRenameData(const TWeakObjectPtr<UObject>& InAsset, const FString& InNewPackagePath, const FString& InNewName)
		: Asset(InAsset)
		, NewPackagePath(InNewPackagePath)
		, NewName(InNewName)
	{
	}
};

/** Makes assets and knows how kinds of assets are presented. */
class IAssetTools
{
public:
	virtual ~IAssetTools() = default;

	/** Loads the module when needed. */
	static IAssetTools& Get();

	/**
	 * A category of one's own in the menu of new assets.
	 * @return a bit that nobody else has; for a key already known its bit, its first display name staying;
	 *         EAssetTypeCategories::Misc when all bits are taken
	 */
	virtual EAssetTypeCategories::Type RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName) = 0;

	/** EAssetTypeCategories::Misc for a key that nobody registered. */
	virtual EAssetTypeCategories::Type FindAdvancedAssetCategory(FName CategoryKey) const = 0;

	virtual void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions) = 0;

	/** The type actions of the class itself, else of its nearest parent that has some. */
	virtual TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const = 0;

	/**
	 * Makes an asset in memory, tells the asset registry and leaves its package dirty; does not save it.
	 * An asset that exists already, in memory or only on disk, is replaced only when the user says so.
	 *
	 * @param AssetName   one object name, no path
	 * @param PackagePath the folder, "/Game/Dir"
	 * @param AssetClass  may be null with a factory, whose class is taken then
	 * @param Factory     makes the object; null makes a plain new object of AssetClass
	 * @return null for an invalid name or folder, when the user keeps the old asset, or when the factory makes nothing
	 */
	virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;

	/** The long form with a free name in "/Game", made from the factory's proposal. */
	virtual UObject* CreateAssetWithDialog(UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;

	/**
	 * Asks for name and folder, then does as CreateAsset() and shows the new asset in the content browser.
	 * @param bCallConfigureProperties lets the factory ask its own questions before it makes the asset
	 * @return null also when the user cancels
	 */
	virtual UObject* CreateAssetWithDialog(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
		FName CallingContext = NAME_None, const bool bCallConfigureProperties = true) = 0;

	/**
	 * A name that no asset, object or package has, on disk or in memory: base name and suffix, characters that object names forbid
	 * made "_". When that is taken, a number follows: 1, 2 …; a candidate that ends in digits counts these up, keeping leading zeros.
	 */
	virtual void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) const = 0;

	/**
	 * Renames or moves assets. What refers to them follows, and is saved; the renamed are saved where they had a file.
	 * @return whether all have their new names; why one has not stands in the log, or among the problems with files
	 */
	virtual bool RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames) = 0;
};
