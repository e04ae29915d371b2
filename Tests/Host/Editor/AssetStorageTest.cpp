// Copyright Velmorant. All Rights Reserved.

#include "AssetTestEditor.h"
#include "HostJsonMembers.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "TestAssets.h"
#include "UObject/Package.h"

#include <nlohmann/json.hpp>

#include <limits>

using AssetStorage = FAssetTestEditor;

TEST_F(AssetStorage, KeepsNumbersExactly)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Numbers"));
	Asset->bFlag = false;
	Asset->Count = std::numeric_limits<int32>::min();
	Asset->Big = std::numeric_limits<int64>::min();
	Asset->Huge = std::numeric_limits<uint64>::max();
	Asset->Small = 255;
	Asset->Single = 0.1f;
	Asset->Double = 0.1 + 0.2;
	Asset->Location = FVector(1.0 / 3.0, -0.0, 1e300);
	Asset->Tint = FLinearColor(0.1f, 0.2f, 0.3f, 0.f);
	Asset->Color = ETestColor::Blue;
	Asset->Size = TS_Large;
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Numbers"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	EXPECT_FALSE(Loaded->bFlag);
	EXPECT_EQ(Loaded->Count, std::numeric_limits<int32>::min());
	EXPECT_EQ(Loaded->Big, std::numeric_limits<int64>::min());
	EXPECT_EQ(Loaded->Huge, std::numeric_limits<uint64>::max());
	EXPECT_EQ(Loaded->Small, 255);
	EXPECT_EQ(Loaded->Single, 0.1f);
	EXPECT_EQ(Loaded->Double, 0.1 + 0.2);
	EXPECT_EQ(Loaded->Location.X, 1.0 / 3.0);
	EXPECT_EQ(Loaded->Location.Z, 1e300);
	EXPECT_EQ(Loaded->Tint.B, 0.3f);
	EXPECT_EQ(Loaded->Tint.A, 0.f);
	EXPECT_EQ(Loaded->Color, ETestColor::Blue);
	EXPECT_EQ(Loaded->Size, TS_Large);
	EXPECT_NE(ReadContent("Numbers.uasset.json").find("\"Single\": 0.1,"), std::string::npos) << "a float must not grow digits";
}

TEST_F(AssetStorage, KeepsTextsWithTheirNamespaceAndKey)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Texts"));
	Asset->Text = TEXT("Türmchen Ñ \"quoted\"\n\t語 😀");
	Asset->Identifier = FName(TEXT("Größe_07"));
	Asset->Caption = FText::AsLocalizable_Advanced(TEXT("Räume"), TEXT("Küche"), TEXT("Küche & Bad"));
	Asset->Captions = {FText::FromString(TEXT("frei")), FText::AsCultureInvariant(FString(TEXT("fest"))), FText::GetEmpty()};
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Texts"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	EXPECT_EQ(Utf8(Loaded->Text), "Türmchen Ñ \"quoted\"\n\t語 😀");
	EXPECT_EQ(Utf8(Loaded->Identifier), "Größe_07");
	EXPECT_EQ(Utf8(Loaded->Caption), "Küche & Bad");
	EXPECT_EQ(Utf8(FTextInspector::GetNamespace(Loaded->Caption).Get(FString())), "Räume");
	EXPECT_EQ(Utf8(FTextInspector::GetKey(Loaded->Caption).Get(FString())), "Küche");
	ASSERT_EQ(Loaded->Captions.Num(), 3);
	EXPECT_EQ(Utf8(Loaded->Captions[0]), "frei");
	EXPECT_FALSE(FTextInspector::GetKey(Loaded->Captions[0]).IsSet());
	EXPECT_FALSE(Loaded->Captions[0].IsCultureInvariant());
	EXPECT_TRUE(Loaded->Captions[1].IsCultureInvariant());
	EXPECT_TRUE(Loaded->Captions[2].IsEmpty());
}

TEST_F(AssetStorage, KeepsContainersAndStructs)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Containers"));
	Asset->Rooms.SetNum(2);
	Asset->Rooms[0].Title = FText::FromString(TEXT("Küche"));
	Asset->Rooms[0].Products.SetNum(2);
	Asset->Rooms[0].Products[1].Name = TEXT("Spüle");
	Asset->Rooms[0].Products[1].Price = 0;
	Asset->ProductsByName.Add(FName("b"), {TEXT("zweites"), 2});
	Asset->ProductsByName.Add(FName("a"), {TEXT("erstes"), 1});
	Asset->Tags.Add(TEXT("neu"));
	Asset->Tags.Add(TEXT("teuer"));
	Asset->Path = FSoftObjectPath(FString(TEXT("/Game/Nowhere/Missing.Missing")));
	Asset->Soft = TSoftObjectPtr<UTestAsset>(FSoftObjectPath(FString(TEXT("/Game/Numbers.Numbers"))));
	Asset->Kind = UTestPart::StaticClass();
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Containers"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	ASSERT_EQ(Loaded->Rooms.Num(), 2);
	EXPECT_EQ(Utf8(Loaded->Rooms[0].Title), "Küche");
	ASSERT_EQ(Loaded->Rooms[0].Products.Num(), 2);
	EXPECT_EQ(Utf8(Loaded->Rooms[0].Products[0].Name), "Product");
	EXPECT_EQ(Loaded->Rooms[0].Products[0].Price, 5);
	EXPECT_EQ(Utf8(Loaded->Rooms[0].Products[1].Name), "Spüle");
	EXPECT_EQ(Loaded->Rooms[0].Products[1].Price, 0);
	EXPECT_TRUE(Loaded->Rooms[1].Products.IsEmpty());
	TArray<FName> Keys;
	Loaded->ProductsByName.GetKeys(Keys);
	ASSERT_EQ(Keys.Num(), 2);
	EXPECT_EQ(Utf8(Keys[0]), "b") << "maps keep their order";
	EXPECT_EQ(Loaded->ProductsByName.FindRef(FName("a")).Price, 1);
	EXPECT_TRUE(Loaded->Tags.Contains(TEXT("teuer")));
	EXPECT_EQ(Loaded->Tags.Num(), 2);
	EXPECT_EQ(Utf8(Loaded->Path.ToString()), "/Game/Nowhere/Missing.Missing") << "a soft path may lead nowhere";
	EXPECT_EQ(Utf8(Loaded->Soft.ToString()), "/Game/Numbers.Numbers");
	EXPECT_EQ(Loaded->Kind.Get(), UTestPart::StaticClass());
	EXPECT_EQ(Problems(), "");
}

TEST_F(AssetStorage, WritesOnlyWhatDiffersFromTheClassDefault)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Dir/Plain"));
	Asset->Count = 8;
	Asset->Scratch = 99; // transient
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();

	const nlohmann::ordered_json Expected = nlohmann::ordered_json::parse(R"({
		"Class": "/Script/TestAssets.TestAsset",
		"Format": 1,
		"Objects": [{"Name": "Plain", "Class": "/Script/TestAssets.TestAsset", "Properties": {"Count": 8}}]
	})");
	EXPECT_EQ(nlohmann::ordered_json::parse(ReadContent("Dir/Plain.uasset.json")), Expected);
	EXPECT_EQ(ReadContent("Dir/Plain.uasset.json").rfind("{\n\t\"Class\": ", 0), 0u) << "tabs, class first";
}

TEST_F(AssetStorage, SavesTheSameBytesAgainAfterLoading)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Same"));
	Asset->Rooms.SetNum(3);
	Asset->Single = 1.1f;
	for (const TCHAR* Name : {TEXT("Zeta"), TEXT("Alpha")})
	{
		Asset->Parts.Add(NewObject<UTestPart>(Asset, Name));
	}
	Asset->OwnPart->Label = TEXT("changed");
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();
	const std::string Before = ReadContent("Same.uasset.json");

	Restart();
	UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Same"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	EXPECT_FALSE(Loaded->GetPackage()->IsDirty()) << "loading changes nothing";
	ASSERT_TRUE(HostPackages::Save(Loaded->GetPackage()).Succeeded());
	EXPECT_EQ(ReadContent("Same.uasset.json"), Before);
}

TEST_F(AssetStorage, KeepsObjectsInsideTheAssetAndTheirReferences)
{
	UTestAsset* Asset = MakeAsset(TEXT("/Game/Owner"));
	UTestPart* First = NewObject<UTestPart>(Asset, FName("First"), RF_Public);
	UTestPart* Inner = NewObject<UTestPart>(First, FName("Inner"));
	UTestPart* Forgotten = NewObject<UTestPart>(Asset, FName("Forgotten"));
	Forgotten->Label = TEXT("nobody refers to it");
	Inner->Label = TEXT("innen");
	Inner->Partner = Asset;
	First->Partner = Inner;
	Asset->Parts = {First};
	Asset->OwnPart->Label = TEXT("changed");
	ASSERT_TRUE(HostPackages::Save(Asset->GetPackage()).Succeeded()) << Problems();
	EXPECT_EQ(ReadContent("Owner.uasset.json").find("Forgotten"), std::string::npos);

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Owner"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	ASSERT_EQ(Loaded->Parts.Num(), 1);
	const UTestPart* LoadedFirst = Loaded->Parts[0];
	ASSERT_NE(LoadedFirst, nullptr);
	EXPECT_TRUE(LoadedFirst->HasAnyFlags(RF_Public));
	const UTestPart* LoadedInner = Cast<UTestPart>(LoadedFirst->Partner.Get());
	ASSERT_NE(LoadedInner, nullptr);
	EXPECT_EQ(LoadedInner->GetOuter(), LoadedFirst);
	EXPECT_EQ(Utf8(LoadedInner->Label), "innen");
	EXPECT_EQ(LoadedInner->Partner.Get(), Loaded);
	EXPECT_EQ(Utf8(Loaded->OwnPart->Label), "changed");
	EXPECT_EQ(Loaded->OwnPart->GetOuter(), Loaded);
}

TEST_F(AssetStorage, LoadsAssetsThatReferToEachOther)
{
	UTestAsset* Left = MakeAsset(TEXT("/Game/Left"));
	UTestAsset* Right = MakeAsset(TEXT("/Game/Sub/Right"));
	Left->Other = Right;
	Right->Other = Left;
	Right->Count = 11;
	const HostPackages::FSaveReport Report = HostPackages::SaveAll();
	ASSERT_EQ(Report.SavedPackages.Num(), 2) << Problems();
	EXPECT_EQ(Utf8(Report.SavedPackages[0]), "/Game/Left");
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty());

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/Left"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	ASSERT_NE(Loaded->Other.Get(), nullptr);
	EXPECT_EQ(Loaded->Other->Count, 11);
	EXPECT_EQ(Loaded->Other->Other.Get(), Loaded);
	EXPECT_EQ(Problems(), "");
}

TEST_F(AssetStorage, KeepsBlueprintsWhoseClassOthersReferTo)
{
	UBlueprint* Blueprint = FKismetEditorUtilities::CreateBlueprint(UTestAsset::StaticClass(), CreatePackage(TEXT("/Game/BP_Test")), FName("BP_Test"),
		BPTYPE_Normal, UBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass());
	ASSERT_NE(Blueprint, nullptr);
	UTestAsset* User = MakeAsset(TEXT("/Game/User"));
	User->Kind = Blueprint->GeneratedClass;
	ASSERT_EQ(HostPackages::SaveAll().WrittenFiles.Num(), 2) << Problems();

	Restart();
	const UTestAsset* Loaded = LoadTestAsset(TEXT("/Game/User"));
	ASSERT_NE(Loaded, nullptr) << Problems();
	ASSERT_NE(Loaded->Kind.Get(), nullptr) << Problems();
	EXPECT_EQ(Utf8(Loaded->Kind->GetPathName()), "/Game/BP_Test.BP_Test_C");
	EXPECT_TRUE(Loaded->Kind->IsChildOf(UTestAsset::StaticClass()));
	const UBlueprint* LoadedBlueprint = Cast<UBlueprint>(HostPackages::LoadAsset(TEXT("/Game/BP_Test")));
	ASSERT_NE(LoadedBlueprint, nullptr);
	EXPECT_EQ(LoadedBlueprint->ParentClass.Get(), UTestAsset::StaticClass());
	EXPECT_EQ(Problems(), "");
}

TEST_F(AssetStorage, DoesNotSaveAnAssetWhoseReferencesWereLost)
{
	WriteContent("Keeper.uasset.json", MakeTestAssetFile("Keeper", R"("Count": 3, "Other": "/Game/Gone.Gone")"));
	const std::string Before = ReadContent("Keeper.uasset.json");

	UTestAsset* Keeper = LoadTestAsset(TEXT("/Game/Keeper"));
	ASSERT_NE(Keeper, nullptr);
	EXPECT_EQ(Keeper->Count, 3);
	EXPECT_EQ(Keeper->Other.Get(), nullptr);
	EXPECT_NE(Problems().find("/Objects/0/Properties/Other"), std::string::npos) << Problems();

	Keeper->Modify();
	Keeper->Count = 4;
	EXPECT_FALSE(HostPackages::SaveAll().Succeeded());
	EXPECT_EQ(ReadContent("Keeper.uasset.json"), Before);
	EXPECT_EQ(HostPackages::GetDirtyPackages().Num(), 1) << "still unsaved";
}

TEST_F(AssetStorage, LeavesBinaryAssetsAlone)
{
	WriteContent("Mesh.uasset", std::string("\xC1\x83\x2A\x9E binary", 11));

	EXPECT_EQ(HostPackages::GetStored(TEXT("/Game/Mesh")), HostPackages::EStored::Binary);
	EXPECT_EQ(HostPackages::LoadAsset(TEXT("/Game/Mesh")), nullptr);
	EXPECT_NE(Problems().find("Mesh.uasset"), std::string::npos) << Problems();
	UTestAsset* Impostor = MakeAsset(TEXT("/Game/Mesh"));
	EXPECT_FALSE(HostPackages::Save(Impostor->GetPackage()).Succeeded());
	EXPECT_FALSE(HasContent("Mesh.uasset.json"));
	EXPECT_EQ(ReadContent("Mesh.uasset"), std::string("\xC1\x83\x2A\x9E binary", 11));
}

TEST_F(AssetStorage, FindsAssetsWhateverTheCaseOfTheirName)
{
	WriteContent("Dir/Tower.uasset.json", MakeTestAssetFile("Tower", R"("Count": 3)"));

	UTestAsset* Asset = LoadTestAsset(TEXT("/Game/dir/TOWER"));
	ASSERT_NE(Asset, nullptr) << Problems();
	EXPECT_EQ(Utf8(Asset->GetPathName()), "/Game/Dir/Tower.Tower");
	EXPECT_EQ(LoadTestAsset(TEXT("/Game/Dir/Tower")), Asset);

	ASSERT_TRUE(HostPackages::Save(MakeAsset(TEXT("/Game/Dir/House"))->GetPackage()).Succeeded()) << Problems();
	EXPECT_TRUE(HostPackages::FindFile(TEXT("/Game/dir/HOUSE")).EndsWith(TEXT("/Dir/House.uasset.json"), ESearchCase::CaseSensitive));
}

TEST_F(AssetStorage, LoadsThroughTheEnginesOwnLookUps)
{
	WriteContent("Lazy.uasset.json", MakeTestAssetFile("Lazy", R"("Count": 3)"));

	const FSoftObjectPath Path(FString(TEXT("/Game/Lazy.Lazy")));
	EXPECT_EQ(Path.ResolveObject(), nullptr) << "resolving loads nothing";
	const UTestAsset* Asset = LoadObject<UTestAsset>(nullptr, TEXT("/Game/Lazy.Lazy"));
	ASSERT_NE(Asset, nullptr) << Problems();
	EXPECT_EQ(Asset->Count, 3);
	EXPECT_EQ(Path.ResolveObject(), Asset);
}

TEST_F(AssetStorage, RefusesMalformedFilesAndLeavesNothingBehind)
{
	struct FCase
	{
		const char* Behaviour;
		std::string File;
		std::vector<std::string> Told; // what the problem must name
	};
	const std::string Head = R"({"Class": "/Script/TestAssets.TestAsset", "Format": 1, "Objects": [{"Name": "Bad", "Class": "/Script/TestAssets.TestAsset")";
	const FCase Cases[] = {
		{"broken JSON names the line", "{\n\t\"Class\": \"/Script/TestAssets.TestAsset\",\n\t\"Format\": ]\n}", {"(3)", "JSON"}},
		{"a cut-off file", Head, {"JSON"}},
		{"a key twice", MakeTestAssetFile("Bad", R"("Count": 1, "Count": 2)"), {"Count", "twice"}},
		{"an unknown property", MakeTestAssetFile("Bad", R"("Cuont": 1)"), {"/Objects/0/Properties/Cuont", "no property"}},
		{"an unknown property deep down", MakeTestAssetFile("Bad", R"("Rooms": [{}, {"Products": [{"Prize": 1}]}])"),
			{"/Objects/0/Properties/Rooms/1/Products/0/Prize"}},
		{"a transient property", MakeTestAssetFile("Bad", R"("Scratch": 1)"), {"Scratch", "not stored"}},
		{"a wrong type", MakeTestAssetFile("Bad", R"("Count": "three")"), {"/Objects/0/Properties/Count", "whole number", "three"}},
		{"a fraction for a whole number", MakeTestAssetFile("Bad", R"("Count": 1.5)"), {"Count", "1.5"}},
		{"a number out of range", MakeTestAssetFile("Bad", R"("Small": 256)"), {"Small", "from 0 to 255"}},
		{"a negative number for an unsigned one", MakeTestAssetFile("Bad", R"("Huge": -1)"), {"Huge"}},
		{"an unknown enumerator", MakeTestAssetFile("Bad", R"("Color": "Mauve")"), {"Color", "Mauve"}},
		{"an incomplete text", MakeTestAssetFile("Bad", R"("Caption": {"Key": "K"})"), {"Caption", "Namespace"}},
		{"an object for an array", MakeTestAssetFile("Bad", R"("Rooms": {})"), {"Rooms", "array"}},
		{"an unknown class", R"({"Class": "/Script/Gone.Thing", "Format": 1, "Objects": [{"Name": "Bad", "Class": "/Script/Gone.Thing"}]})",
			{": /Class", "/Script/Gone.Thing"}},
		{"an unknown class with members of its own", R"({"Class": "/Script/Gone.Layout", "Tree": {}})", {": /Class", "/Script/Gone.Layout"}},
		{"an unknown class of a part", Head + R"(}, {"Name": "P", "Class": "/Script/Gone.Part", "Outer": "Bad"}]})", {"/Objects/1/Class", "/Script/Gone.Part"}},
		{"an abstract class",
			R"({"Class": "/Script/TestAssets.TestAbstractAsset", "Format": 1, "Objects": [{"Name": "Bad", "Class": "/Script/TestAssets.TestAbstractAsset"}]})",
			{"TestAbstractAsset"}},
		{"another name than the file's", MakeTestAssetFile("Good", ""), {"\"Bad\""}},
		{"a newer format", R"({"Class": "/Script/TestAssets.TestAsset", "Format": 2, "Objects": []})", {"format 1"}},
		{"an unknown member", R"({"Class": "/Script/TestAssets.TestAsset", "Format": 1, "Extra": 1, "Objects": []})", {"/Extra"}},
		{"an owner that is not there", Head + R"(}, {"Name": "P", "Class": "/Script/TestAssets.TestPart", "Outer": "Bad.Gone"}]})", {"/Objects/1", "Bad.Gone"}},
		{"two objects of one name",
			Head + R"(}, {"Name": "P", "Class": "/Script/TestAssets.TestPart", "Outer": "Bad"}, {"Name": "p", "Class": "/Script/TestAssets.TestPart", "Outer": "Bad"}]})",
			{"/Objects/2", "two objects"}},
		{"another class for what the owner makes", Head + R"(}, {"Name": "OwnPart", "Class": "/Script/TestAssets.TestAsset", "Outer": "Bad"}]})",
			{"/Objects/1", "OwnPart"}},
	};
	for (const FCase& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		Restart();
		WriteContent("Bad.uasset.json", Case.File);
		EXPECT_EQ(HostPackages::LoadAsset(TEXT("/Game/Bad")), nullptr);
		EXPECT_FALSE(IsValid(FindObject<UObject>(nullptr, TEXT("/Game/Bad.Bad"))));
		EXPECT_NE(Problems().find("Bad.uasset.json"), std::string::npos) << Problems();
		for (const std::string& Text : Case.Told)
		{
			EXPECT_NE(Problems().find(Text), std::string::npos) << "not told: " << Text << "\nbut: " << Problems();
		}
		EXPECT_EQ(ReadContent("Bad.uasset.json"), Case.File);
	}
}

TEST_F(AssetStorage, ReadsClassesWithAFormatOfTheirOwnAndDoesNotWriteThem)
{
	// The registration lasts as long as the process; no other test stores this class.
	HostPackages::RegisterReader(UTestLayoutAsset::StaticClass()->GetClassPathName(), [](const HostPackages::FDocument& Document, UPackage* Package) {
		UTestLayoutAsset* Asset = NewObject<UTestLayoutAsset>(Package, FName(*Document.AssetName), RF_Public | RF_Standalone);
		Asset->Text = FString(UTF8_TO_TCHAR(Document.Json.dump().c_str()));
		return Asset;
	});
	const std::string File = R"({"Tree":["anything"],"Class":"/Script/TestAssets.TestLayoutAsset"})";
	WriteContent("Layout.uasset.json", File);

	UTestAsset* Asset = LoadTestAsset(TEXT("/Game/Layout"));
	ASSERT_NE(Asset, nullptr) << Problems();
	EXPECT_EQ(Utf8(Asset->Text), File);
	Asset->Modify();
	EXPECT_TRUE(HostPackages::GetDirtyPackages().IsEmpty()) << "there is nothing to lose";
	EXPECT_FALSE(HostPackages::Save(Asset->GetPackage()).Succeeded());
	EXPECT_EQ(ReadContent("Layout.uasset.json"), File);
}

TEST_F(AssetStorage, TellsNamesThatCannotBeStored)
{
	struct FCase
	{
		FString Name;
		bool bValid;
	};
	const FCase Cases[] = {
		{TEXT("/Game/Dir/Türmchen_Ñ"), true},
		{TEXT("/Game/Dir/With Blank"), false},
		{TEXT("/Game/Dir/Tower:A"), false},
		{TEXT("/Game/Dir/"), false},
		{TEXT("/Game//Double"), false},
		{TEXT("/Elsewhere/Asset"), false},
		{TEXT("Short"), false},
		{TEXT("/Game/../Outside"), false},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(HostPackages::IsValidPackageName(Case.Name), Case.bValid) << Utf8(Case.Name);
	}
}
