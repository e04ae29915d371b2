// Copyright Velmorant. All Rights Reserved.

#include "AssetToolsImpl.h"

#include "AssetCreation.h"
#include "AssetNames.h"
#include "AssetRenaming.h"
#include "AssetShower.h"
#include "Factories/Factory.h"
#include "IAssetTypeActions.h"
#include "UObject/Class.h"

EAssetTypeCategories::Type FAssetToolsImpl::RegisterAdvancedAssetCategory(FName CategoryKey, FText CategoryDisplayName)
{
	return Categories.Register(CategoryKey, CategoryDisplayName);
}

EAssetTypeCategories::Type FAssetToolsImpl::FindAdvancedAssetCategory(FName CategoryKey) const
{
	return Categories.Find(CategoryKey);
}

void FAssetToolsImpl::RegisterAssetTypeActions(const TSharedRef<IAssetTypeActions>& NewActions)
{
	TypeActions.Add(NewActions);
}

TWeakPtr<IAssetTypeActions> FAssetToolsImpl::GetAssetTypeActionsForClass(const UClass* Class) const
{
	for (const UClass* Candidate = Class; Candidate != nullptr; Candidate = Candidate->GetSuperClass())
	{
		for (const TSharedRef<IAssetTypeActions>& Actions : TypeActions)
		{
			if (Actions->GetSupportedClass() == Candidate)
			{
				return Actions;
			}
		}
	}
	return nullptr;
}

UObject* FAssetToolsImpl::CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	return AssetCreation::Create({AssetName, PackagePath, AssetClass, Factory, CallingContext});
}

UObject* FAssetToolsImpl::CreateAssetWithDialog(UClass* AssetClass, UFactory* Factory, FName CallingContext)
{
	return CreateInFolder(AssetClass, Factory, TEXT("/Game"), CallingContext);
}

UObject* FAssetToolsImpl::CreateInFolder(UClass* AssetClass, UFactory* Factory, const FString& Folder, FName CallingContext)
{
	if (AssetClass == nullptr && Factory != nullptr)
	{
		AssetClass = Factory->GetSupportedClass();
	}
	FString BaseName = Factory != nullptr ? Factory->GetDefaultNewAssetName() : FString();
	if (BaseName.IsEmpty())
	{
		BaseName = FString(TEXT("New")) + (AssetClass != nullptr ? AssetClass->GetName() : FString(TEXT("Asset")));
	}
	FString PackageName;
	FString AssetName;
	CreateUniqueAssetName(Folder / BaseName, FString(), PackageName, AssetName);
	return CreateAssetWithDialog(AssetName, Folder, AssetClass, Factory, CallingContext, true);
}

UObject* FAssetToolsImpl::CreateAssetWithDialog(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory,
	FName CallingContext, const bool bCallConfigureProperties)
{
	FAssetRequest Request{AssetName, PackagePath, AssetClass, Factory, CallingContext};
	if (!AssetCreation::AskWhereToSave(Request))
	{
		return nullptr;
	}
	if (Factory != nullptr && bCallConfigureProperties && !Factory->ConfigureProperties())
	{
		return nullptr;
	}
	UObject* Asset = AssetCreation::Create(Request);
	if (Asset != nullptr)
	{
		AssetShower::Show({Asset});
	}
	return Asset;
}

void FAssetToolsImpl::CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) const
{
	FString Folder;
	FString BaseName;
	AssetNames::Split(InBasePackageName, Folder, BaseName);
	FString Candidate = BaseName + InSuffix; // as it is: characters that names forbid are the caller's to mend
	while (AssetNames::IsTaken(Folder / Candidate))
	{
		Candidate = AssetNames::Increment(Candidate);
	}
	OutPackageName = Folder / Candidate;
	OutAssetName = Candidate;
}

bool FAssetToolsImpl::RenameAssets(const TArray<FAssetRenameData>& AssetsAndNames)
{
	bool bAllRenamed = true;
	for (const FAssetRenameData& Request : AssetsAndNames)
	{
		bAllRenamed &= AssetRenaming::Rename(Request);
	}
	return bAllRenamed;
}
