// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetTestEditor.h"
#include "EditorAssetLibrary.h"
#include "HostAssetDefinitions.h"
#include "HostLog.h"
#include "AssetDefinition.h"
#include "TestAssets.h"
#include "UObject/Package.h"

namespace AssetRegistryTest
{
	std::vector<std::string> PathsOf(const TArray<FAssetData>& Assets)
	{
		std::vector<std::string> Paths;
		for (const FAssetData& Asset : Assets)
		{
			Paths.push_back(Utf8(Asset.GetObjectPathString()));
		}
		return Paths;
	}

	std::vector<std::string> Find(const FARFilter& Filter)
	{
		TArray<FAssetData> Assets;
		EXPECT_TRUE(FAssetRegistryModule::GetRegistry().GetAssets(Filter, Assets));
		return PathsOf(Assets);
	}
}

class AssetRegistry : public FAssetTestEditor
{
protected:
	AssetRegistry()
	{
		WriteContent("Zoo/B.uasset.json", MakeTestAssetFile("B", R"("Count": 1)"));
		WriteContent("Alpha/C.uasset.json", MakeTestAssetFile("C", ""));
		WriteContent("Alpha/Deep/D.uasset.json",
			R"({"Class": "/Script/TestAssets.TestSpecialAsset", "Format": 1, "Objects": [{"Name": "D", "Class": "/Script/TestAssets.TestSpecialAsset"}]})");
		WriteContent("Alpha/Mesh.uasset", "binary");
	}

	static FARFilter ByClass(const UClass* Class)
	{
		FARFilter Filter;
		Filter.ClassPaths.Add(Class->GetClassPathName());
		return Filter;
	}
};

TEST_F(AssetRegistry, FindsAssetsOfExactlyOneClassOnDiskAndInMemory)
{
	MakeAsset(TEXT("/Game/Zoo/Second"));
	MakeAsset(TEXT("/Game/Alpha/First"));

	EXPECT_EQ(AssetRegistryTest::Find(ByClass(UTestAsset::StaticClass())),
		(std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Zoo/B.B", "/Game/Zoo/Second.Second", "/Game/Alpha/First.First"}))
		<< "on disk by path, then in order of creation";
	EXPECT_EQ(FindObject<UObject>(nullptr, TEXT("/Game/Zoo/B.B")), nullptr) << "a query loads nothing";
}

TEST_F(AssetRegistry, FiltersByEveryComponentThatIsNotEmpty)
{
	FARFilter Recursive = ByClass(UTestAsset::StaticClass());
	Recursive.bRecursiveClasses = true;
	EXPECT_EQ(AssetRegistryTest::Find(Recursive), (std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Alpha/Deep/D.D", "/Game/Zoo/B.B"}));

	FARFilter Excluding = Recursive;
	Excluding.RecursiveClassPathsExclusionSet.Add(UTestSpecialAsset::StaticClass()->GetClassPathName());
	EXPECT_EQ(AssetRegistryTest::Find(Excluding), (std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Zoo/B.B"}));

	FARFilter InFolder = Recursive;
	InFolder.PackagePaths.Add(FName("/Game/Alpha"));
	EXPECT_EQ(AssetRegistryTest::Find(InFolder), (std::vector<std::string>{"/Game/Alpha/C.C"}));
	InFolder.bRecursivePaths = true;
	EXPECT_EQ(AssetRegistryTest::Find(InFolder), (std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Alpha/Deep/D.D"}));

	FARFilter ByName;
	ByName.PackageNames = {FName("/Game/Zoo/B"), FName("/Game/Alpha/Deep/D")};
	EXPECT_EQ(AssetRegistryTest::Find(ByName), (std::vector<std::string>{"/Game/Alpha/Deep/D.D", "/Game/Zoo/B.B"}));

	FARFilter ByPath;
	ByPath.SoftObjectPaths.Add(FSoftObjectPath(FString(TEXT("/game/zoo/b.b"))));
	EXPECT_EQ(AssetRegistryTest::Find(ByPath), (std::vector<std::string>{"/Game/Zoo/B.B"})) << "paths ignore case";

	TArray<FAssetData> None;
	EXPECT_FALSE(FAssetRegistryModule::GetRegistry().GetAssets(FARFilter(), None)) << "an empty filter is invalid";
}

TEST_F(AssetRegistry, ListsAnAssetOnceWhetherLoadedSavedOrNew)
{
	LoadTestAsset(TEXT("/Game/Zoo/B"));
	UTestAsset* New = MakeAsset(TEXT("/Game/Zoo/A"));
	FARFilter OnDisk = ByClass(UTestAsset::StaticClass());
	OnDisk.bIncludeOnlyOnDiskAssets = true;

	EXPECT_EQ(AssetRegistryTest::Find(ByClass(UTestAsset::StaticClass())),
		(std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Zoo/B.B", "/Game/Zoo/A.A"}));
	EXPECT_EQ(AssetRegistryTest::Find(OnDisk), (std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Zoo/B.B"}));

	ASSERT_TRUE(HostPackages::Save(New->GetPackage()).Succeeded());
	EXPECT_EQ(AssetRegistryTest::Find(OnDisk), (std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Zoo/A.A", "/Game/Zoo/B.B"}));
}

TEST_F(AssetRegistry, ForgetsDeadAssets)
{
	MakeAsset(TEXT("/Game/Dead"))->MarkAsGarbage();

	EXPECT_EQ(AssetRegistryTest::Find(ByClass(UTestAsset::StaticClass())).size(), 2u);
}

TEST_F(AssetRegistry, AssetDataLoadsItsAsset)
{
	FARFilter ByPath;
	ByPath.SoftObjectPaths.Add(FSoftObjectPath(FString(TEXT("/Game/Zoo/B.B"))));
	TArray<FAssetData> Found;
	FAssetRegistryModule::GetRegistry().GetAssets(ByPath, Found);
	ASSERT_EQ(Found.Num(), 1);
	const FAssetData Data = Found[0];
	ASSERT_TRUE(Data.IsValid());
	EXPECT_EQ(Data.FastGetAsset(), nullptr);
	EXPECT_EQ(Utf8(Data.PackagePath), "/Game/Zoo");
	EXPECT_EQ(Data.GetClass(), UTestAsset::StaticClass());
	const UTestAsset* Asset = Cast<UTestAsset>(Data.GetAsset());
	ASSERT_NE(Asset, nullptr) << Problems();
	EXPECT_EQ(Asset->Count, 1);
	EXPECT_EQ(Data.FastGetAsset(), Asset);
	EXPECT_FALSE(FAssetData().IsValid());
	EXPECT_EQ(FAssetData().GetAsset(), nullptr);
}

TEST_F(AssetRegistry, PassesOverFilesThatAreNoAssetsAndSaysSo)
{
	WriteContent("Notes.uasset.json", "{\"Hello\": 1}");
	WriteContent("Cut.uasset.json", "{\"Class\": \"/Script/TestAssets.TestAsset\", \"Obj");

	EXPECT_EQ(AssetRegistryTest::Find(ByClass(UTestAsset::StaticClass())),
		(std::vector<std::string>{"/Game/Alpha/C.C", "/Game/Cut.Cut", "/Game/Zoo/B.B"}))
		<< "a file whose head is whole is listed; loading it tells what is wrong";
	EXPECT_NE(Problems().find("Notes.uasset.json"), std::string::npos) << Problems();
	EXPECT_EQ(UEditorAssetLibrary::LoadAsset(TEXT("/Game/Cut.Cut")), nullptr);
}

TEST_F(AssetRegistry, EditorScriptsLoadAssetsByAnyFormOfTheirPath)
{
	struct FCase
	{
		FString Path;
		bool bLoads;
	};
	const FCase Cases[] = {
		{TEXT("/Game/Zoo/B"), true},
		{TEXT("/Game/Zoo/B.B"), true},
		{TEXT("/Script/TestAssets.TestAsset'/Game/Zoo/B.B'"), true},
		{TEXT("/Game/Zoo/B.Other"), false},
		{TEXT("/Game/Zoo/B.B:OwnPart"), false},
		{TEXT("/Game/Zoo/Missing"), false},
		{TEXT("/Game/Alpha/Mesh"), false},
		{TEXT("Zoo/B"), false},
		{TEXT(""), false},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Utf8(Case.Path));
		EXPECT_EQ(UEditorAssetLibrary::LoadAsset(Case.Path) != nullptr, Case.bLoads);
	}
}

TEST_F(AssetRegistry, EditorScriptsSaveLoadedAssets)
{
	UTestAsset* Asset = LoadTestAsset(TEXT("/Game/Zoo/B"));
	ASSERT_NE(Asset, nullptr);
	const std::string Before = ReadContent("Zoo/B.uasset.json");
	Asset->Count = 4711; // nobody marks the package
	EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Asset));
	EXPECT_EQ(ReadContent("Zoo/B.uasset.json"), Before) << "only what has unsaved changes";
	EXPECT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Asset, false));
	EXPECT_NE(ReadContent("Zoo/B.uasset.json").find("4711"), std::string::npos);

	for (UObject* NoAsset : {static_cast<UObject*>(nullptr), static_cast<UObject*>(Asset->GetPackage()), static_cast<UObject*>(NewObject<UTestAsset>())})
	{
		EXPECT_FALSE(UEditorAssetLibrary::SaveLoadedAsset(NoAsset, false));
	}
}

TEST_F(AssetRegistry, DefinitionsAreFoundByReflection)
{
	const UAssetDefinition* Definition = HostAssetDefinitions::FindExact(UTestAsset::StaticClass());

	ASSERT_NE(Definition, nullptr);
	EXPECT_EQ(Utf8(Definition->GetAssetDisplayName()), "Test Asset");
	EXPECT_EQ(HostAssetDefinitions::FindExact(UTestSpecialAsset::StaticClass()), nullptr);
	EXPECT_EQ(Utf8(Definition->GetAssetCategories()[0].GetCategoryText()), "Tests");
	EXPECT_EQ(Utf8(Definition->GetAssetCategories()[0].GetSubCategoryText()), "Fixtures");
}
