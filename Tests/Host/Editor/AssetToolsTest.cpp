// Copyright Velmorant. All Rights Reserved.

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetTestEditor.h"
#include "AssetToolsModule.h"
#include "AssetTypeActions_Base.h"
#include "HostAssetTools.h"
#include "HostContentBrowser.h"
#include "TestAssets.h"
#include "UObject/Package.h"

#include <filesystem>

using AssetTools = FAssetTestEditor;

namespace AssetToolsTest
{
	void Answer(const char* Kind, const TCHAR* Choice, const TMap<FString, FString>& Fields = TMap<FString, FString>())
	{
		FHostAnswer Answer;
		Answer.Choice = Choice;
		Answer.Fields = Fields;
		HostQuestions::Enqueue(FName(Kind), Answer);
	}

	std::string UniqueName(const TCHAR* Base, const TCHAR* Suffix)
	{
		FString PackageName;
		FString AssetName;
		IAssetTools::Get().CreateUniqueAssetName(Base, Suffix, PackageName, AssetName);
		EXPECT_TRUE(PackageName.EndsWith(FString(TEXT("/")) + AssetName)) << Utf8(PackageName) << " " << Utf8(AssetName);
		return Utf8(PackageName);
	}

	/** Presents UTestSpecialAsset. */
	class FSpecialActions : public FAssetTypeActions_Base
	{
	public:
		explicit FSpecialActions(uint32 InCategories)
			: Categories(InCategories)
		{
		}
		virtual FText GetName() const override { return FText::FromString(TEXT("Special")); }
		virtual FColor GetTypeColor() const override { return FColor::Cyan; }
		virtual UClass* GetSupportedClass() const override { return UTestSpecialAsset::StaticClass(); }
		virtual uint32 GetCategories() override { return Categories; }

	private:
		uint32 Categories;
	};
}

TEST_F(AssetTools, MakesNamesThatNothingHasYet)
{
	struct FCase
	{
		const char* Behaviour;
		std::vector<const TCHAR*> InMemory;
		std::vector<std::string> OnDisk;
		FString Base;
		FString Suffix;
		std::string Expected;
	};
	const FCase Cases[] = {
		{"a file takes a name", {}, {"D/A_X.uasset.json"}, TEXT("/Game/D/A"), TEXT("_X"), "/Game/D/A_X1"},
		{"a level takes a name", {}, {"D/A_X.umap.json"}, TEXT("/Game/D/A"), TEXT("_X"), "/Game/D/A_X1"},
		{"a binary asset takes a name", {}, {"D/A_X.uasset"}, TEXT("/Game/D/A"), TEXT("_X"), "/Game/D/A_X1"},
		{"case does not count", {}, {"D/A_x.uasset.json"}, TEXT("/Game/D/A"), TEXT("_X"), "/Game/D/A_X1"},
		{"digits at the end are counted up", {TEXT("/Game/Level7")}, {}, TEXT("/Game/Level7"), TEXT(""), "/Game/Level8"},
		{"leading zeros stay", {TEXT("/Game/Level09")}, {}, TEXT("/Game/Level09"), TEXT(""), "/Game/Level10"},
		{"a carry makes room", {TEXT("/Game/Level99")}, {}, TEXT("/Game/Level99"), TEXT(""), "/Game/Level100"},
		{"a name of digits alone", {TEXT("/Game/9")}, {}, TEXT("/Game/9"), TEXT(""), "/Game/10"},
		{"a name is not mended", {}, {}, TEXT("/Game/D/A"), TEXT("_b c:d"), "/Game/D/A_b c:d"},
		{"letters beyond ASCII stay", {}, {}, TEXT("/Game/D/A"), TEXT("_Türmchen"), "/Game/D/A_Türmchen"},
		{"the same name in another folder is free", {TEXT("/Game/E/A_X")}, {}, TEXT("/Game/D/A"), TEXT("_X"), "/Game/D/A_X"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		std::filesystem::remove_all(Project.GetNative("Content"));
		Restart();
		for (const TCHAR* PackageName : Case.InMemory)
		{
			MakeAsset(PackageName);
		}
		for (const std::string& File : Case.OnDisk)
		{
			WriteContent(File, "{}");
		}
		EXPECT_EQ(AssetToolsTest::UniqueName(*Case.Base, *Case.Suffix), Case.Expected);
	}
}

TEST_F(AssetTools, CreatesNothingFromBadNamesOrClasses)
{
	struct FCase
	{
		const char* Behaviour;
		FString Name;
		FString Path;
		UClass* Class;
	};
	const FCase Cases[] = {
		{"a colon", TEXT("LevelVariant_Tower:A"), TEXT("/Game"), UTestAsset::StaticClass()},
		{"a blank", TEXT("Tower A"), TEXT("/Game"), UTestAsset::StaticClass()},
		{"a path for a name", TEXT("Dir/New"), TEXT("/Game"), UTestAsset::StaticClass()},
		{"no name", TEXT(""), TEXT("/Game"), UTestAsset::StaticClass()},
		{"no folder", TEXT("New"), TEXT(""), UTestAsset::StaticClass()},
		{"a folder that is not mounted", TEXT("New"), TEXT("/Elsewhere"), UTestAsset::StaticClass()},
		{"an abstract class", TEXT("New"), TEXT("/Game"), UTestAbstractAsset::StaticClass()},
		{"no class at all", TEXT("New"), TEXT("/Game"), nullptr},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(IAssetTools::Get().CreateAsset(Case.Name, Case.Path, Case.Class, nullptr), nullptr) << Case.Behaviour;
	}
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());
}

TEST_F(AssetTools, KeepsAnExistingAssetUnlessTheUserReplacesIt)
{
	UTestAsset* Old = MakeAsset(TEXT("/Game/Taken"));
	Old->Count = 1;

	EXPECT_EQ(IAssetTools::Get().CreateAsset(TEXT("Taken"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr), nullptr) << "unattended: no";
	EXPECT_EQ(CountAsked("ReplaceAsset"), 1);
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/Taken")), Old);

	AssetToolsTest::Answer("ReplaceAsset", TEXT("Yes"));
	UObject* New = IAssetTools::Get().CreateAsset(TEXT("Taken"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr);
	ASSERT_NE(New, nullptr);
	EXPECT_NE(New, Old);
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/Taken")), New);
	EXPECT_EQ(CastChecked<UTestAsset>(New)->Count, 7);
}

TEST_F(AssetTools, AsksBeforeItReplacesAFileThatIsNotLoaded)
{
	WriteContent("Stored.uasset.json", MakeTestAssetFile("Stored", R"("Count": 3)"));
	const std::string Before = ReadContent("Stored.uasset.json");

	EXPECT_EQ(IAssetTools::Get().CreateAsset(TEXT("Stored"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr), nullptr);
	EXPECT_EQ(CountAsked("ReplaceAsset"), 1);
	EXPECT_TRUE(HostPackages::SaveAll().WrittenFiles.IsEmpty());
	EXPECT_EQ(ReadContent("Stored.uasset.json"), Before);

	AssetToolsTest::Answer("ReplaceAsset", TEXT("Yes"));
	EXPECT_NE(IAssetTools::Get().CreateAsset(TEXT("Stored"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr), nullptr);
	EXPECT_EQ(HostPackages::SaveAll().WrittenFiles.Num(), 1) << Problems();
	EXPECT_NE(ReadContent("Stored.uasset.json"), Before);
}

TEST_F(AssetTools, NeverReplacesBinaryAssetsAndLevels)
{
	WriteContent("Mesh.uasset", "binary");
	WriteContent("Harbor.umap.json", "{}");
	AssetToolsTest::Answer("ReplaceAsset", TEXT("Yes"));

	EXPECT_EQ(IAssetTools::Get().CreateAsset(TEXT("Mesh"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr), nullptr);
	EXPECT_EQ(IAssetTools::Get().CreateAsset(TEXT("Harbor"), TEXT("/Game"), UTestAsset::StaticClass(), nullptr), nullptr);
	EXPECT_EQ(CountAsked("ReplaceAsset"), 0) << "there is nothing to choose";
}

TEST_F(AssetTools, SaveDialogDecidesNameAndFolder)
{
	struct FCase
	{
		const char* Behaviour;
		TMap<FString, FString> Fields;
		std::string Expected;
	};
	const FCase Cases[] = {
		{"the proposal is accepted", {}, "/Game/Dir/Proposed.Proposed"},
		{"another name", {{TEXT("Name"), TEXT("Mine")}}, "/Game/Dir/Mine.Mine"},
		{"another folder", {{TEXT("Path"), TEXT("/Game/Other/")}}, "/Game/Other/Proposed.Proposed"},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Restart();
		AssetToolsTest::Answer("SaveAsset", TEXT("Save"), Case.Fields);
		UTestAssetFactory* Factory = NewObject<UTestAssetFactory>();
		UObject* Asset = IAssetTools::Get().CreateAssetWithDialog(TEXT("Proposed"), TEXT("/Game/Dir"), UTestAsset::StaticClass(), Factory);
		ASSERT_NE(Asset, nullptr);
		EXPECT_EQ(Utf8(Asset->GetPathName()), Case.Expected);
		EXPECT_EQ(Factory->NumConfigured, 1);
		ASSERT_EQ(HostContentBrowser::GetSyncHistory().Num(), 1) << "the new asset is shown";
		EXPECT_EQ(Utf8(HostContentBrowser::GetSyncHistory()[0].Assets[0].GetObjectPathString()), Case.Expected);
	}
}

TEST_F(AssetTools, UnattendedDialogSavesAsProposed)
{
	UObject* Asset = IAssetTools::Get().CreateAssetWithDialog(UTestAsset::StaticClass(), NewObject<UTestAssetFactory>());

	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Utf8(Asset->GetPathName()), "/Game/NewTestAsset.NewTestAsset");
	UObject* Second = IAssetTools::Get().CreateAssetWithDialog(UTestAsset::StaticClass(), NewObject<UTestAssetFactory>());
	ASSERT_NE(Second, nullptr);
	EXPECT_EQ(Utf8(Second->GetName()), "NewTestAsset1");
}

TEST_F(AssetTools, MakesNothingWhenAnybodySaysNo)
{
	IAssetTools& Tools = IAssetTools::Get();
	UTestAssetFactory* Factory = NewObject<UTestAssetFactory>();

	AssetToolsTest::Answer("SaveAsset", TEXT("Cancel"));
	EXPECT_EQ(Tools.CreateAssetWithDialog(TEXT("A"), TEXT("/Game"), UTestAsset::StaticClass(), Factory), nullptr) << "dialog cancelled";
	EXPECT_EQ(Factory->NumConfigured, 0);

	Factory->bConfigures = false;
	EXPECT_EQ(Tools.CreateAssetWithDialog(TEXT("A"), TEXT("/Game"), UTestAsset::StaticClass(), Factory), nullptr) << "factory not configured";
	EXPECT_NE(Tools.CreateAssetWithDialog(TEXT("B"), TEXT("/Game"), UTestAsset::StaticClass(), Factory, NAME_None, false), nullptr)
		<< "the factory is not asked";

	Factory->bMakesObject = false;
	EXPECT_EQ(Tools.CreateAsset(TEXT("A"), TEXT("/Game"), UTestAsset::StaticClass(), Factory), nullptr) << "factory makes nothing";
	EXPECT_EQ(AssetToolsTest::UniqueName(TEXT("/Game/A"), TEXT("")), "/Game/A") << "a failed creation takes no name";
	ASSERT_EQ(HostPackages::GetDirtyPackages().Num(), 1);
}

TEST_F(AssetTools, HandsOutOneBitPerCategoryKey)
{
	IAssetTools& Tools = IAssetTools::Get();
	const EAssetTypeCategories::Type First = Tools.RegisterAdvancedAssetCategory(FName("One"), FText::FromString(TEXT("First")));
	const EAssetTypeCategories::Type Second = Tools.RegisterAdvancedAssetCategory(FName("Two"), FText::FromString(TEXT("Second")));

	EXPECT_NE(First, Second);
	EXPECT_EQ(Tools.RegisterAdvancedAssetCategory(FName("one"), FText::FromString(TEXT("Renamed"))), First);
	EXPECT_EQ(Utf8(HostAssetTools::GetAdvancedCategories()[0].DisplayName), "First") << "the first name stays";
	EXPECT_EQ(Tools.RegisterAdvancedAssetCategory(FName("Two"), FText::GetEmpty()), Second);

	for (int32 Index = 0; Index < 40; ++Index)
	{
		Tools.RegisterAdvancedAssetCategory(FName(*FString::Printf(TEXT("Key%d"), Index)), FText::GetEmpty());
	}
	EXPECT_EQ(Tools.RegisterAdvancedAssetCategory(FName("Late"), FText::GetEmpty()), EAssetTypeCategories::Misc) << "no bit is left";
	EXPECT_EQ(Tools.RegisterAdvancedAssetCategory(FName("Key0"), FText::GetEmpty()), static_cast<uint32>(Second) << 1);

	Restart();
	EXPECT_TRUE(HostAssetTools::GetAdvancedCategories().IsEmpty()) << "another editor starts anew";
}

TEST_F(AssetTools, FindsTypeActionsByClass)
{
	IAssetTools& Tools = IAssetTools::Get();
	const TSharedRef<IAssetTypeActions> Actions = MakeShared<AssetToolsTest::FSpecialActions>(EAssetTypeCategories::Misc);
	Tools.RegisterAssetTypeActions(Actions);

	EXPECT_EQ(Tools.GetAssetTypeActionsForClass(UTestSpecialAsset::StaticClass()).Pin(), Actions);
	EXPECT_FALSE(Tools.GetAssetTypeActionsForClass(UTestAsset::StaticClass()).IsValid()) << "not those of a class below";
	EXPECT_EQ(Utf8(HostAssetTools::FindKind(UTestSpecialAsset::StaticClass()).DisplayName), "Special") << "nearer than the definition of its parent";
	EXPECT_EQ(HostAssetTools::FindKind(UTestSpecialAsset::StaticClass()).Color, FLinearColor(FColor::Cyan));
	EXPECT_EQ(Utf8(HostAssetTools::FindKind(UTestLayoutAsset::StaticClass()).DisplayName), "Test Asset");
	EXPECT_EQ(Utf8(HostAssetTools::FindKind(UTestPart::StaticClass()).DisplayName), "Test Part") << "nobody presents it";
}

TEST_F(AssetTools, MenuOfNewAssetsShowsWhatDefinitionsSay)
{
	const TArray<HostAssetTools::FNewAssetItem> Menu = HostAssetTools::GetNewAssetMenu();
	const HostAssetTools::FNewAssetItem* Item =
		Menu.FindByPredicate([](const HostAssetTools::FNewAssetItem& Candidate) { return Candidate.AssetClass == UTestAsset::StaticClass(); });

	ASSERT_NE(Item, nullptr);
	EXPECT_EQ(Utf8(Item->DisplayName), "Test Asset");
	EXPECT_EQ(Utf8(Item->Category), "Tests");
	EXPECT_EQ(Utf8(Item->SubCategory), "Fixtures");
	EXPECT_EQ(Item->Color, FLinearColor(FColor::Purple));

	AssetToolsTest::Answer("SaveAsset", TEXT("Save"), {{TEXT("Name"), TEXT("FromMenu")}});
	UObject* Asset = HostAssetTools::CreateFromMenu(*Item);
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->IsA<UTestAsset>());
	EXPECT_EQ(Utf8(Asset->GetPathName()), "/Game/FromMenu.FromMenu");

	AssetToolsTest::Answer("SaveAsset", TEXT("Save"));
	Asset = HostAssetTools::CreateFromMenu(*Item, TEXT("/Game/Sub"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Utf8(Asset->GetPackage()->GetName()), std::string("/Game/Sub/") + Utf8(Asset->GetName())) << "the folder that was proposed";
}
