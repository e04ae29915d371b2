// Copyright Velmorant. All Rights Reserved.

#include "AssetDefinition.h"
#include "Engine/Blueprint.h"
#include "Factories/Factory.h"
#include "HostAssetDefinitions.h"
#include "HostAssetTools.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "HostQuestions.h"
#include "MinimapConfigAsset.h"
#include "ToolkitTest.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "VelmorantAssets.h"

using testing::UnorderedElementsAre;

namespace AssetTypesTest
{
	/** The lines of the menu of new assets that make assets of the toolkit. */
	TArray<HostAssetTools::FNewAssetItem> GetToolkitItems()
	{
		return HostAssetTools::GetNewAssetMenu().FilterByPredicate([](const HostAssetTools::FNewAssetItem& Item) {
			return Item.AssetClass->GetPathName().StartsWith(TEXT("/Script/Velmorant"));
		});
	}

	HostAssetTools::FNewAssetItem FindItem(const char* DisplayName)
	{
		for (const HostAssetTools::FNewAssetItem& Item : GetToolkitItems())
		{
			if (ToUtf8(Item.DisplayName) == DisplayName)
			{
				return Item;
			}
		}
		ADD_FAILURE() << "no new asset is called " << DisplayName;
		return {};
	}

	UFactory* MakeFactory(const char* DisplayName)
	{
		return NewObject<UFactory>(GetTransientPackage(), FindItem(DisplayName).DefaultFactory->GetClass());
	}

	/** "namespace|key" of a text that can be translated. */
	std::string KeyOf(const FText& Text)
	{
		return ToUtf8(FTextInspector::GetNamespace(Text).Get(FString(TEXT("none")))) + "|" + ToUtf8(FTextInspector::GetKey(Text).Get(FString(TEXT("none"))));
	}
}

using namespace AssetTypesTest;

class AssetTypes : public FToolkitTest
{
};

TEST_F(AssetTypes, AreSevenInTheMenuOfNewAssets)
{
	StartEditor();
	std::vector<std::string> Lines;
	for (const HostAssetTools::FNewAssetItem& Item : GetToolkitItems())
	{
		Lines.push_back(ToUtf8(Item.Category) + "/" + ToUtf8(Item.SubCategory) + "/" + ToUtf8(Item.DisplayName) + ": " + ToUtf8(Item.AssetClass->GetName()) + " by " + ToUtf8(Item.DefaultFactory->GetClass()->GetName()));
	}
	EXPECT_THAT(Lines, UnorderedElementsAre("Velmorant Assets//Maps Linker Asset: VelmorantMapsLinkerConfig by MapLinkerAssetFactory", "Velmorant Assets//Minimap Config Asset: MinimapConfigAsset by MinimapDataAssetFactory", "VelmorantAsset/Actions/InteractiveSpotPlacement Action: VlmISPActionsBase by ISPActionBaseFactory", "VelmorantAsset/Actions/UnitVolume Action: UnitVolumeAction by UnitVolumeActionFactory", "VelmorantAsset/Configurator/Configurator Data Asset: VelmorantConfiguratorDataAsset by ConfiguratorDataAssetFactory", "VelmorantAsset/Configurator/Configurator Items Override: VelmorantConfiguratorItemOverride by ConfiguratorItemOverrideFactory", "VelmorantAsset/UI/UI Style Configuration: VelmorantUIStyleConfiguration by UIStyleConfigurationAssetFactory"));
}

TEST_F(AssetTypes, OfDefinitionsHaveTranslatableTexts)
{
	const struct
	{
		const char* DisplayName;
		const char* Name;
		const char* Category;
		const char* SubCategory;
	} Cases[] = {
		{"Configurator Data Asset", "UConfiguratorDataAsset_AssetDefinition|AssetTypeActions_ConfiguratorDataAsset", "UConfiguratorDataAsset_AssetDefinition|Cat", "UConfiguratorDataAsset_AssetDefinition|SubCat"},
		{"Configurator Items Override", "UConfiguratorItemOverride_AssetDefinition|AssetTypeActions_ConfiguratorItemOverride", "UConfiguratorItemOverride_AssetDefinition|Cat", "UConfiguratorItemOverride_AssetDefinition|SubCat"},
		{"UI Style Configuration", "UVelmorantUIConfig_AssetDefinition|AssetTypeActions_VelmorantUIConfig", "UVelmorantUIConfig_AssetDefinition|Cat", "UVelmorantUIConfig_AssetDefinition|SubCat"},
		{"InteractiveSpotPlacement Action", "ActioAccsets_Factory|AssetTypeActions_ISPAction", "ActioAccsets_Factory|VlmAction_Cat", "ActioAccsets_Factory|VlmAction_SubCat"},
		{"UnitVolume Action", "ActioAccsets_Factory|AssetTypeActions_UnitVolumeAction", "ActioAccsets_Factory|VlmAction_Cat", "ActioAccsets_Factory|VlmAction_SubCat"},
	};
	StartEditor();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.DisplayName);
		const UAssetDefinition* Definition = HostAssetDefinitions::FindExact(FindItem(Case.DisplayName).AssetClass);
		ASSERT_NE(Definition, nullptr);
		EXPECT_EQ(KeyOf(Definition->GetAssetDisplayName()), Case.Name);
		ASSERT_EQ(Definition->GetAssetCategories().Num(), 1);
		EXPECT_EQ(KeyOf(Definition->GetAssetCategories()[0].GetCategoryText()), Case.Category);
		EXPECT_EQ(KeyOf(Definition->GetAssetCategories()[0].GetSubCategoryText()), Case.SubCategory);
	}
}

TEST_F(AssetTypes, OfTypeActionsHavePlainNames)
{
	StartEditor();
	for (const char* DisplayName : {"Maps Linker Asset", "Minimap Config Asset"})
	{
		const HostAssetTools::FNewAssetItem Item = FindItem(DisplayName);
		EXPECT_FALSE(FTextInspector::GetKey(Item.DisplayName).IsSet()) << DisplayName;
		EXPECT_EQ(KeyOf(Item.Category), "FVelmorantProEditor|VelmorantAssets") << DisplayName;
		EXPECT_EQ(HostAssetDefinitions::FindExact(Item.AssetClass), nullptr) << DisplayName;
	}
}

TEST_F(AssetTypes, ShareTheCategoryOfBothActions)
{
	StartEditor();
	const UAssetDefinition* Spot = HostAssetDefinitions::FindExact(UVlmISPActionsBase::StaticClass());
	const UAssetDefinition* Volume = HostAssetDefinitions::FindExact(UUnitVolumeAction::StaticClass());
	EXPECT_EQ(Spot->GetAssetCategories().GetData(), Volume->GetAssetCategories().GetData());
}

TEST_F(AssetTypes, AreMadeWithTheFlagsOfTheirFactories)
{
	const struct
	{
		const char* DisplayName;
		bool bAddsTransactional;
	} Cases[] = {{"Configurator Data Asset", true}, {"Configurator Items Override", true}, {"UI Style Configuration", true}, {"Maps Linker Asset", false}, {"Minimap Config Asset", false}};
	StartEditor();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.DisplayName);
		UFactory* Factory = MakeFactory(Case.DisplayName);
		EXPECT_TRUE(Factory->bCreateNew);
		EXPECT_TRUE(Factory->bEditAfterNew);

		UClass* Asked = HostObjects::DeriveClass(Factory->SupportedClass, TEXT("Derived_C"), GetTransientPackage());
		UObject* Plain = Factory->FactoryCreateNew(Asked, GetTransientPackage(), TEXT("Plain"), RF_Public, nullptr, nullptr);
		ASSERT_NE(Plain, nullptr);
		EXPECT_EQ(Plain->GetClass(), Asked);
		EXPECT_EQ(Plain->GetOuter(), GetTransientPackage());
		EXPECT_EQ(ToUtf8(Plain->GetFName()), "Plain");
		EXPECT_TRUE(Plain->HasAnyFlags(RF_Public));
		EXPECT_EQ(Plain->HasAnyFlags(RF_Transactional), Case.bAddsTransactional);

		UObject* Transactional = Factory->FactoryCreateNew(Factory->SupportedClass, GetTransientPackage(), TEXT("Transactional"), RF_Transactional, nullptr, nullptr);
		EXPECT_TRUE(Transactional->HasAnyFlags(RF_Transactional));
		StartEditor(); // the names are free again
	}
}

TEST_F(AssetTypes, OfActionsAreBlueprintsOfTheFixedParentWhateverIsAskedFor)
{
	const struct
	{
		const char* DisplayName;
		UClass* Parent;
		UClass* Asked;
	} Cases[] = {{"InteractiveSpotPlacement Action", UVlmISPActionsBase::StaticClass(), UUnitVolumeAction::StaticClass()}, {"UnitVolume Action", UUnitVolumeAction::StaticClass(), UMinimapConfigAsset::StaticClass()}};
	StartEditor();
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.DisplayName);
		UFactory* Factory = MakeFactory(Case.DisplayName);
		EXPECT_TRUE(Factory->bCreateNew);
		EXPECT_TRUE(Factory->bEditAfterNew);
		EXPECT_EQ(Factory->SupportedClass, Case.Parent);

		const UBlueprint* Blueprint = Cast<UBlueprint>(Factory->FactoryCreateNew(Case.Asked, CreatePackage(TEXT("/Game/Action")), TEXT("Action"), RF_NoFlags, nullptr, nullptr));
		ASSERT_NE(Blueprint, nullptr);
		EXPECT_EQ(Blueprint->ParentClass, Case.Parent);
		EXPECT_EQ(Blueprint->BlueprintType, BPTYPE_Normal);
		EXPECT_TRUE(Blueprint->GeneratedClass->IsChildOf(Case.Parent));
		StartEditor(); // the name is free again
	}
}

TEST_F(AssetTypes, OfActionsReportAParentThatNoBlueprintCanHave)
{
	StartEditor();
	UFactory* Factory = MakeFactory("UnitVolume Action");
	UClass* Parent = UUnitVolumeAction::StaticClass();
	const EClassFlags Flags = Parent->ClassFlags;
	Parent->ClassFlags = static_cast<EClassFlags>(Flags | CLASS_Deprecated);
	EXPECT_EQ(Factory->FactoryCreateNew(Parent, GetTransientPackage(), TEXT("Action"), RF_NoFlags, nullptr, nullptr), nullptr);
	Parent->ClassFlags = Flags;

	Factory->SupportedClass = nullptr; // as if the companion had no such class
	EXPECT_EQ(Factory->FactoryCreateNew(Parent, GetTransientPackage(), TEXT("Action"), RF_NoFlags, nullptr, nullptr), nullptr);

	ASSERT_EQ(HostQuestions::GetAsked().Num(), 2);
	const FHostQuestion& Question = HostQuestions::GetAsked()[0].Question;
	EXPECT_EQ(ToUtf8(Question.Message), "Cannot create a blueprint based on the class 'UnitVolumeAction'.");
	EXPECT_EQ(Question.Choices.Num(), 1);
	EXPECT_EQ(ToUtf8(Question.Choices[0]), "Ok");
	EXPECT_EQ(ToUtf8(HostQuestions::GetAsked()[1].Question.Message), "Cannot create a blueprint based on the class '(null)'.");
}

TEST_F(AssetTypes, CanAllBeMadeSavedAndLoadedAgain)
{
	StartEditor();
	TArray<FString> Paths;
	for (const HostAssetTools::FNewAssetItem& Item : GetToolkitItems())
	{
		UObject* Asset = HostAssetTools::CreateFromMenu(Item);
		ASSERT_NE(Asset, nullptr) << ToUtf8(Item.DisplayName);
		Paths.Add(Asset->GetPathName());
	}
	EXPECT_EQ(Paths.Num(), 7);
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());

	StartEditor();
	for (const FString& Path : Paths)
	{
		EXPECT_NE(LoadObject<UObject>(nullptr, *Path), nullptr) << ToUtf8(Path);
	}
}

TEST_F(AssetTypes, ComeWithAnEmptyClassThatNamesTheirUnit)
{
	StartEditor();
	const UClass* Class = FindObject<UClass>(nullptr, TEXT("/Script/VelmorantProEditor.ActionAssetFactories"));
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class->GetSuperClass(), UObject::StaticClass());
	EXPECT_EQ(ToUtf8(Class->ClassConfigName), "Engine");
	EXPECT_EQ(Class->GetOwnProperties().Num(), 0);
	EXPECT_EQ(Class->GetOwnFunctions().Num(), 0);
}
