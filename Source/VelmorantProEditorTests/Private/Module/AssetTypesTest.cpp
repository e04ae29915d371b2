// Copyright Velmorant. All Rights Reserved.

#include "AssetDefinition.h"
#include "AssetToolsModule.h"
#include "CoreMinimal.h"
#include "Factories/Factory.h"
#include "IAssetTools.h"
#include "IAssetTypeActions.h"
#include "Misc/AssetCategoryPath.h"
#include "Support/ModuleNames.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantAssetTypesTest
{
	/** The module's own classes of a kind that can be made. */
	TArray<UClass*> FindClasses(const UClass* Kind)
	{
		TArray<UClass*> Classes;
		for (TObjectIterator<UClass> Class; Class; ++Class)
		{
			if (Class->IsChildOf(Kind) && !Class->HasAnyClassFlags(CLASS_Abstract) && Class->GetPackage()->GetName() == VelmorantTests::ModulePackage)
			{
				Classes.Add(*Class);
			}
		}
		return Classes;
	}

	UClass* FindModuleClass(const TCHAR* Name)
	{
		return FindObject<UClass>(nullptr, *(FString(VelmorantTests::ModulePackage) + TEXT(".") + Name));
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleFactoriesTest, "Velmorant.Module.AssetTypes.Factories", VelmorantTests::Flags)

bool FVelmorantModuleFactoriesTest::RunTest(const FString&)
{
	const TPair<const TCHAR*, const TCHAR*> AllExpected[] = {
		{TEXT("ConfiguratorDataAssetFactory"), TEXT("VelmorantConfiguratorDataAsset")},
		{TEXT("ConfiguratorItemOverrideFactory"), TEXT("VelmorantConfiguratorItemOverride")},
		{TEXT("UIStyleConfigurationAssetFactory"), TEXT("VelmorantUIStyleConfiguration")},
		{TEXT("MapLinkerAssetFactory"), TEXT("VelmorantMapsLinkerConfig")},
		{TEXT("MinimapDataAssetFactory"), TEXT("MinimapConfigAsset")},
		{TEXT("ISPActionBaseFactory"), TEXT("VlmISPActionsBase")},
		{TEXT("UnitVolumeActionFactory"), TEXT("UnitVolumeAction")},
	};
	const FVelmorantTestContent Content;
	for (const TPair<const TCHAR*, const TCHAR*>& Expected : AllExpected)
	{
		const UClass* Class = VelmorantAssetTypesTest::FindModuleClass(Expected.Key);
		if (!TestNotNull(Expected.Key, Class))
		{
			continue;
		}
		UFactory* Factory = NewObject<UFactory>(GetTransientPackage(), Class);
		TestEqualSensitive(Expected.Key, *Factory->SupportedClass->GetName(), Expected.Value);
		TestTrue(*FString::Printf(TEXT("%s makes new assets, and opens them"), Expected.Key), Factory->bCreateNew && Factory->bEditAfterNew);
		TestNotNull(*FString::Printf(TEXT("%s makes an asset"), Expected.Key), IAssetTools::Get().CreateAsset(Expected.Value, Content.GetFolder(), Factory->SupportedClass, Factory));
	}
	TestEqual(TEXT("there are no others"), VelmorantAssetTypesTest::FindClasses(UFactory::StaticClass()).Num(), 7);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleDefinitionsTest, "Velmorant.Module.AssetTypes.Definitions", VelmorantTests::Flags)

bool FVelmorantModuleDefinitionsTest::RunTest(const FString&)
{
	struct FExpected
	{
		const TCHAR* Class;
		const TCHAR* AssetClass;
		const TCHAR* DisplayName;
		const TCHAR* SubCategory;
		FColor Color;
	};
	const FExpected AllExpected[] = {
		{TEXT("ConfiguratorDataAsset_AssetDefinition"), TEXT("VelmorantConfiguratorDataAsset"), TEXT("Configurator Data Asset"), TEXT("Configurator"), FColor::Purple},
		{TEXT("ConfiguratorItemOverride_AssetDefinition"), TEXT("VelmorantConfiguratorItemOverride"), TEXT("Configurator Items Override"), TEXT("Configurator"), FColor::Emerald},
		{TEXT("UIStyleConfiguration_AssetDefinition"), TEXT("VelmorantUIStyleConfiguration"), TEXT("UI Style Configuration"), TEXT("UI"), FColor::Emerald},
		{TEXT("ISPActionBase_AssetDefinition"), TEXT("VlmISPActionsBase"), TEXT("InteractiveSpotPlacement Action"), TEXT("Actions"), FColor::Cyan},
		{TEXT("UnitVolumeAction_AssetDefinition"), TEXT("UnitVolumeAction"), TEXT("UnitVolume Action"), TEXT("Actions"), FColor::Cyan},
	};
	for (const FExpected& Expected : AllExpected)
	{
		const UClass* Class = VelmorantAssetTypesTest::FindModuleClass(Expected.Class);
		if (!TestNotNull(Expected.Class, Class))
		{
			continue;
		}
		const UAssetDefinition* Definition = CastChecked<UAssetDefinition>(Class->GetDefaultObject());
		TestEqualSensitive(Expected.Class, *Definition->GetAssetClass().Get()->GetName(), Expected.AssetClass);
		TestEqualSensitive(Expected.Class, *Definition->GetAssetDisplayName().ToString(), Expected.DisplayName);
		TestEqual(Expected.Class, Definition->GetAssetColor(), FLinearColor(Expected.Color));
		const TConstArrayView<FAssetCategoryPath> Categories = Definition->GetAssetCategories();
		if (TestEqual(Expected.Class, Categories.Num(), 1))
		{
			TestEqualSensitive(Expected.Class, *Categories[0].GetCategoryText().ToString(), TEXT("VelmorantAsset"));
			TestEqualSensitive(Expected.Class, *Categories[0].GetSubCategoryText().ToString(), Expected.SubCategory);
		}
	}
	TestEqual(TEXT("there are no others"), VelmorantAssetTypesTest::FindClasses(UAssetDefinition::StaticClass()).Num(), 5);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleTypeActionsTest, "Velmorant.Module.AssetTypes.TypeActions", VelmorantTests::Flags)

bool FVelmorantModuleTypeActionsTest::RunTest(const FString&)
{
	const TPair<const TCHAR*, const TCHAR*> AllExpected[] = {
		{TEXT("/Script/VelmorantPro.VelmorantMapsLinkerConfig"), TEXT("Maps Linker Asset")},
		{TEXT("/Script/VelmorantPro.MinimapConfigAsset"), TEXT("Minimap Config Asset")},
	};
	IAssetTools& Tools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
	const uint32 Category = Tools.FindAdvancedAssetCategory("VelmorantAsset");
	TestTrue(TEXT("the toolkit has a category of its own"), Category != EAssetTypeCategories::Misc && Category != EAssetTypeCategories::None);
	for (const TPair<const TCHAR*, const TCHAR*>& Expected : AllExpected)
	{
		const UClass* Class = FindObject<UClass>(nullptr, Expected.Key);
		const TSharedPtr<IAssetTypeActions> Actions = Tools.GetAssetTypeActionsForClass(Class).Pin();
		if (TestNotNull(Expected.Key, Class) && TestValid(Expected.Value, Actions))
		{
			TestEqualSensitive(Expected.Key, *Actions->GetName().ToString(), Expected.Value);
			TestEqual(Expected.Key, Actions->GetTypeColor(), FColor::Purple);
			TestTrue(Expected.Key, Actions->GetCategories() == Category);
		}
	}
	return true;
}

#endif
