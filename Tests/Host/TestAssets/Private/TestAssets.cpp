// Copyright Velmorant. All Rights Reserved.

#include "TestAssets.h"

#include "Modules/ModuleManager.h"

#define LOCTEXT_NAMESPACE "TestAssets"

UTestAsset::UTestAsset()
{
	OwnPart = CreateDefaultSubobject<UTestPart>(TEXT("OwnPart"));
	OwnPart->Label = TEXT("made by its owner");
}

UTestAssetFactory::UTestAssetFactory()
{
	SupportedClass = UTestAsset::StaticClass();
	bCreateNew = true;
}

UObject* UTestAssetFactory::FactoryCreateNew(UClass* InClass, UObject* InParent, FName InName, EObjectFlags Flags, UObject*, FFeedbackContext*)
{
	return bMakesObject ? NewObject<UTestAsset>(InParent, InClass, InName, Flags) : nullptr;
}

bool UTestAssetFactory::ConfigureProperties()
{
	++NumConfigured;
	return bConfigures;
}

TConstArrayView<FAssetCategoryPath> UTestAsset_AssetDefinition::GetAssetCategories() const
{
	static const TArray<FAssetCategoryPath> Categories = {FAssetCategoryPath(LOCTEXT("Cat", "Tests"), LOCTEXT("SubCat", "Fixtures"))};
	return Categories;
}

TSoftClassPtr<UObject> UTestAsset_AssetDefinition::GetAssetClass() const
{
	return UTestAsset::StaticClass();
}

FLinearColor UTestAsset_AssetDefinition::GetAssetColor() const
{
	return FLinearColor(FColor::Purple);
}

FText UTestAsset_AssetDefinition::GetAssetDisplayName() const
{
	return LOCTEXT("Name", "Test Asset");
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FDefaultModuleImpl, TestAssets)
