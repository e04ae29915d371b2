// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "AssetCategories.h"
#include "CoreMinimal.h"
#include "IAssetTools.h"

/** The asset tools of one editor: categories and type actions are kept here, assets are made by AssetCreation.h. */
class FAssetToolsImpl : public IAssetTools
{
public:
	//~ Begin IAssetTools
	virtual EAssetTypeCategories::Type RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName) override;
	virtual EAssetTypeCategories::Type FindAdvancedAssetCategory(FName CategoryKey) const override;
	virtual void RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions) override;
	virtual TWeakPtr<IAssetTypeActions> GetAssetTypeActionsForClass(const UClass* Class) const override;
	virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext) override;
	virtual UObject* CreateAssetWithDialog(UClass* AssetClass, UFactory* Factory, FName CallingContext) override;
	virtual UObject* CreateAssetWithDialog(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
		FName CallingContext, const bool bCallConfigureProperties) override;
	virtual void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) const override;
	virtual bool RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames) override;
	//~ End IAssetTools

	/** The short form of CreateAssetWithDialog(), with another folder to begin with. */
	UObject* CreateInFolder(UClass* AssetClass, UFactory* Factory, const FString& Folder, FName CallingContext = NAME_None);

	const FAssetCategories& GetCategories() const { return Categories; }

private:
	FAssetCategories Categories;
	TArray<TSharedRef<IAssetTypeActions>> TypeActions; // in order of registration
};
