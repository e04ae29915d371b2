// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "CoreMinimal.h"
#include "EditorAssetLibrary.h"
#include "IAssetTools.h"
#include "LevelVariantSets.h"
#include "Misc/App.h"
#include "Support/Beliefs.h"
#include "Support/QuietTest.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "UObject/SoftObjectPath.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUniqueAssetNameTest, "Velmorant.Engine.Assets.UniqueNames", VelmorantTests::Flags)

bool FVelmorantUniqueAssetNameTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const auto MakeName = [&Content](const TCHAR* Base, const TCHAR* Suffix) {
		FString Package;
		FString Asset;
		IAssetTools::Get().CreateUniqueAssetName(Content.GetPackageName(Base), Suffix, Package, Asset);
		return Package.RightChop(Content.GetFolder().Len()) + TEXT(" ") + Asset;
	};
	TestEqualSensitive(TEXT("a name that is free stays"), *MakeName(TEXT("Configurator"), TEXT("_HT")), TEXT("/Configurator_HT Configurator_HT"));
	Content.Make<ULevelVariantSets>(TEXT("Configurator_HT"));
	TestEqualSensitive(TEXT("one that is taken, in memory too, gets a number"), *MakeName(TEXT("Configurator"), TEXT("_HT")), TEXT("/Configurator_HT1 Configurator_HT1"));
	Content.Make<ULevelVariantSets>(TEXT("Configurator_HT1"));
	TestEqualSensitive(TEXT("the next gets the next"), *MakeName(TEXT("Configurator"), TEXT("_HT")), TEXT("/Configurator_HT2 Configurator_HT2"));
	Content.Make<ULevelVariantSets>(TEXT("Floor_007"));
	VelmorantTests::RecordBelief(*this, TEXT("CreateUniqueAssetName of a name that ends with digits"), MakeName(TEXT("Floor"), TEXT("_007")));
	VelmorantTests::RecordBelief(*this, TEXT("CreateUniqueAssetName with characters that names forbid"), MakeName(TEXT("Configurator"), TEXT("_a:b c")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantCreateAssetTest, "Velmorant.Engine.Assets.Create", VelmorantTests::Flags)

bool FVelmorantCreateAssetTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	UObject* Asset = IAssetTools::Get().CreateAsset(TEXT("Sets"), Content.GetFolder(), ULevelVariantSets::StaticClass(), nullptr);
	if (!TestNotNull(TEXT("no factory is needed"), Asset))
	{
		return false;
	}
	TestEqualSensitive(TEXT("it stands in a package of its name"), *Asset->GetPathName(), *(Content.GetPackageName(TEXT("Sets")) + TEXT(".Sets")));
	TestTrue(TEXT("it is public, stands alone and can be undone"), Asset->HasAllFlags(RF_Public | RF_Standalone | RF_Transactional));
	TestTrue(TEXT("the registry knows it"), IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(Asset)).IsValid());
	TestTrue(TEXT("it waits to be saved"), Asset->GetPackage()->IsDirty());
	TestEqual(TEXT("level variant sets begin without a set"), CastChecked<ULevelVariantSets>(Asset)->GetNumVariantSets(), 0);
	return true;
}

IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(FVelmorantReplaceAssetTest, FVelmorantQuietTest, "Velmorant.Engine.Assets.Replace", VelmorantTests::Flags)

bool FVelmorantReplaceAssetTest::RunTest(const FString&)
{
	if (!FApp::IsUnattended())
	{
		AddInfo(TEXT("Left out: somebody would be asked. Run with -unattended."));
		return true;
	}
	const FVelmorantTestContent Content;
	const UObject* Asset = Content.Make<ULevelVariantSets>(TEXT("Sets"));
	const UObject* Again = IAssetTools::Get().CreateAsset(TEXT("Sets"), Content.GetFolder(), ULevelVariantSets::StaticClass(), nullptr);
	TestTrue(TEXT("nobody says yes: the asset stays"), IsValid(Asset));
	VelmorantTests::RecordBelief(*this, TEXT("CreateAsset over an asset, unattended"), FString(Again == nullptr ? TEXT("null") : TEXT("replaces it")));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantAssetRegistryTest, "Velmorant.Engine.Assets.Registry", VelmorantTests::Flags)

bool FVelmorantAssetRegistryTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	for (const TCHAR* Name : {TEXT("Second"), TEXT("First")})
	{
		Content.Make<ULevelVariantSets>(Name);
	}
	FARFilter Filter;
	Filter.ClassPaths.Add(ULevelVariantSets::StaticClass()->GetClassPathName());
	Filter.PackagePaths.Add(FName(*Content.GetFolder()));
	TArray<FAssetData> Assets;
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get().GetAssets(Filter, Assets);
	TestEqual(TEXT("what nobody saved is found as well"), Assets.Num(), 2);
	TArray<FString> Names;
	for (const FAssetData& Asset : Assets)
	{
		TestTrue(TEXT("and given without loading"), Asset.IsAssetLoaded() && Asset.GetAsset() != nullptr);
		Names.Add(Asset.AssetName.ToString());
	}
	VelmorantTests::RecordBelief(*this, TEXT("order of assets in memory only, made as Second, First"), FString::Join(Names, TEXT(", ")));
	return true;
}

IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(FVelmorantLoadMissingAssetTest, FVelmorantQuietTest, "Velmorant.Engine.Assets.LoadMissing", VelmorantTests::Flags)

bool FVelmorantLoadMissingAssetTest::RunTest(const FString&)
{
	for (const TCHAR* Path : {TEXT("/VelmorantPro/VelmorantNowhere"), TEXT("/VelmorantNowhere/Panel.Panel"), TEXT("Panel"), TEXT("")})
	{
		TestNull(*FString::Printf(TEXT("'%s' is not there, and no failure"), Path), UEditorAssetLibrary::LoadAsset(Path));
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSoftPathTest, "Velmorant.Engine.Assets.UnloadedSoftPaths", VelmorantTests::Flags)

bool FVelmorantSoftPathTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	FSoftObjectPath Path;
	TestTrue(TEXT("a path is null until it is set"), Path.IsNull());
	Path.SetPath(Content.GetPackageName(TEXT("Missing")) + TEXT(".Missing"));
	TestFalse(TEXT("a path to nothing is not null"), Path.IsNull());
	TestNull(TEXT("what is not loaded is not resolved"), Path.ResolveObject());
	const UObject* Asset = Content.Make<ULevelVariantSets>(TEXT("Sets"));
	Path.SetPath(Asset->GetPathName());
	TestSamePtr<UObject>(TEXT("what is loaded is"), Path.ResolveObject(), const_cast<UObject*>(Asset));
	TestTrue(TEXT("paths compare without case"), Path == FSoftObjectPath(Asset->GetPathName().ToUpper()));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantAssetCategoryBitsTest, "Velmorant.Engine.Assets.CategoryBits", VelmorantTests::Flags)

bool FVelmorantAssetCategoryBitsTest::RunTest(const FString&)
{
	// The module's own category: no further bit is used up.
	IAssetTools& Tools = FModuleManager::LoadModuleChecked<FAssetToolsModule>("AssetTools").Get();
	const EAssetTypeCategories::Type Category = Tools.FindAdvancedAssetCategory("VelmorantAsset");
	TestTrue(TEXT("a registered key has a bit"), Category != EAssetTypeCategories::Misc && Category != EAssetTypeCategories::None);
	TestTrue(TEXT("registered again, it has the same"), Tools.RegisterAdvancedAssetCategory("VelmorantAsset", INVTEXT("Another")) == Category);
	return true;
}

#endif
