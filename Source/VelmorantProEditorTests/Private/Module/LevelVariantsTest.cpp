// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Editor.h"
#include "LevelVariantSets.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantVariantHandler.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantLevelVariantsTest
{
	FVelmorantConfigGroup MakeGroup(const TCHAR* Name, std::initializer_list<const TCHAR*> Products)
	{
		FVelmorantConfigGroup Group;
		Group.Name = Name;
		for (const TCHAR* Product : Products)
		{
			Group.Products.AddDefaulted_GetRef().Name = Product;
		}
		return Group;
	}

	/** A data asset of the configurator, with one room of two groups. */
	UVelmorantConfiguratorDataAsset* MakeData(const FVelmorantTestContent& Content, const TCHAR* Configurator)
	{
		UVelmorantConfiguratorDataAsset* Data = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Data"));
		Data->ConfiguratorName = Configurator;
		FVelmorantConfigRoom& Room = Data->ConfiguratorUnit.Rooms.AddDefaulted_GetRef();
		Room.Name = TEXT("Hall");
		Room.Groups.Add(MakeGroup(TEXT("Floor"), {TEXT("Oak"), TEXT("Ash")}));
		Room.Groups.Add(MakeGroup(TEXT("Wall"), {TEXT("White")}));
		return Data;
	}

	ULevelVariantSets* GetSets(const UVelmorantConfiguratorDataAsset& Data)
	{
		return Cast<ULevelVariantSets>(Data.LevelVariantSets.ResolveObject());
	}

	/** By the module's own operation; null with the test failed when there are none then. */
	ULevelVariantSets* MakeSets(FAutomationTestBase& Test, UVelmorantConfiguratorDataAsset* Data)
	{
		UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Data);
		ULevelVariantSets* Sets = GetSets(*Data);
		Test.TestNotNull(TEXT("sets were made"), Sets);
		return Sets;
	}

	/** "Group: variant, variant; …", the room's part of a set's name left out; other sets with their whole names. */
	FString Describe(ULevelVariantSets& Sets)
	{
		TArray<FString> Parts;
		for (UVariantSet* Set : Sets.GetVariantSets())
		{
			FString Name = Set->GetDisplayText().ToString();
			for (const TCHAR* Group : {TEXT("Floor"), TEXT("Wall")})
			{
				Name = Name.Equals(UVelmorantVariantHandler::CombineVariantSet(TEXT("Hall"), Group)) ? FString(Group) : Name;
			}
			TArray<FString> Names;
			for (UVariant* Variant : Set->GetVariants())
			{
				Names.Add(Variant->GetDisplayText().ToString());
			}
			Parts.Add(Name + TEXT(": ") + FString::Join(Names, TEXT(", ")));
		}
		return FString::Join(Parts, TEXT("; "));
	}

	/** A test's surroundings: notifications are not shown, but logged as warnings. */
	struct FScene
	{
		explicit FScene(FAutomationTestBase& Test) { Test.AddExpectedErrorPlain(TEXT("Notification not shown"), EAutomationExpectedErrorFlags::Contains, 0); }

		FVelmorantTestContent Content;
		FVelmorantEditorState State;
		FVelmorantNotificationsAllowed Notifications{false};
	};
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleFreshSetsTest, "Velmorant.Module.LevelVariants.Fresh", VelmorantTests::Flags)

bool FVelmorantModuleFreshSetsTest::RunTest(const FString&)
{
	using namespace VelmorantLevelVariantsTest;
	const FScene Scene(*this);
	UVelmorantConfiguratorDataAsset* Data = MakeData(Scene.Content, TEXT("VelmorantTestTower"));
	ULevelVariantSets* Sets = MakeSets(*this, Data);
	if (!Sets)
	{
		return false;
	}
	TestEqualSensitive(TEXT("beside the data asset"), *Sets->GetPathName(), *(Scene.Content.GetPackageName(TEXT("LevelVariant_VelmorantTestTower")) + TEXT(".LevelVariant_VelmorantTestTower")));
	TestEqualSensitive(TEXT("a set for each room and group, a variant for each product"), *Describe(*Sets), TEXT("Floor: Oak, Ash; Wall: White"));
	TestTrue(TEXT("both assets wait to be saved"), Data->GetPackage()->IsDirty() && Sets->GetPackage()->IsDirty());
	TestEqual(TEXT("all of it is one step"), Scene.State.CountNewSteps(), 1);
	GEditor->UndoTransaction();
	TestTrue(TEXT("undone, the data asset has no sets"), Data->LevelVariantSets.IsNull());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleAdoptedSetsTest, "Velmorant.Module.LevelVariants.Adopted", VelmorantTests::Flags)

bool FVelmorantModuleAdoptedSetsTest::RunTest(const FString&)
{
	using namespace VelmorantLevelVariantsTest;
	const FScene Scene(*this);
	UVelmorantConfiguratorDataAsset* Data = MakeData(Scene.Content, TEXT("VelmorantTestTower"));
	for (const TCHAR* Other : {TEXT("Sets_AnotherVelmorantTestTower"), TEXT("VelmorantTestTower"), TEXT("Sets_VelmorantTestTower_A")})
	{
		Scene.Content.Make<ULevelVariantSets>(Other);
	}
	ULevelVariantSets* Existing = Scene.Content.Make<ULevelVariantSets>(TEXT("Sets_Of_velmorantTESTtower"));
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Data);
	TestSamePtr(TEXT("sets whose last part is the configurator's name, whatever its case, are taken"), GetSets(*Data), Existing);
	TestEqualSensitive(TEXT("and filled"), *Describe(*Existing), TEXT("Floor: Oak, Ash; Wall: White"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleRepeatedSetsTest, "Velmorant.Module.LevelVariants.Repeated", VelmorantTests::Flags)

bool FVelmorantModuleRepeatedSetsTest::RunTest(const FString&)
{
	using namespace VelmorantLevelVariantsTest;
	const FScene Scene(*this);
	UVelmorantConfiguratorDataAsset* Data = MakeData(Scene.Content, TEXT("VelmorantTestTower"));
	ULevelVariantSets* Sets = MakeSets(*this, Data);
	if (!Sets)
	{
		return false;
	}
	Sets->GetPackage()->SetDirtyFlag(false);
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Data);
	TestSamePtr(TEXT("the second time, the same sets"), GetSets(*Data), Sets);
	TestFalse(TEXT("do not change"), Sets->GetPackage()->IsDirty());

	Data->ConfiguratorUnit.Rooms[0].Groups[0] = MakeGroup(TEXT("Floor"), {TEXT("Birch"), TEXT("oak")});
	UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Data);
	TestEqualSensitive(TEXT("what is new comes last, what is gone stays"), *Describe(*Sets), TEXT("Floor: Oak, Ash, Birch; Wall: White"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleNamedTwiceTest, "Velmorant.Module.LevelVariants.ProductNamedTwice", VelmorantTests::Flags)

bool FVelmorantModuleNamedTwiceTest::RunTest(const FString&)
{
	using namespace VelmorantLevelVariantsTest;
	const FScene Scene(*this);
	UVelmorantConfiguratorDataAsset* Data = MakeData(Scene.Content, TEXT("VelmorantTestTower"));
	ULevelVariantSets* Sets = Scene.Content.Make<ULevelVariantSets>(TEXT("Sets"));
	Data->ConfiguratorUnit.Rooms[0].Groups = {MakeGroup(TEXT("Floor"), {TEXT("Oak"), TEXT("OAK"), TEXT("Ash"), TEXT("Oak"), TEXT(""), TEXT("")})};
	TestTrue(TEXT("the sets are filled"), UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Data, Sets));
	TestEqualSensitive(TEXT("a product named twice is one variant"), *Describe(*Sets), TEXT("Floor: Oak, Ash, "));
	TestFalse(TEXT("without sets there is nothing to fill"), UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Data, nullptr));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleBlankNamesTest, "Velmorant.Module.LevelVariants.BlanksInNames", VelmorantTests::Flags)

bool FVelmorantModuleBlankNamesTest::RunTest(const FString&)
{
	using namespace VelmorantLevelVariantsTest;
	const FScene Scene(*this);
	UVelmorantConfiguratorDataAsset* Data = MakeData(Scene.Content, TEXT("Velmorant Test Tower"));
	const ULevelVariantSets* Sets = MakeSets(*this, Data);
	if (Sets)
	{
		TestEqualSensitive(TEXT("blanks become underscores"), *Sets->GetName(), TEXT("LevelVariant_Velmorant_Test_Tower"));
	}
	return true;
}

#endif
