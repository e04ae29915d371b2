// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "HostQuestions.h"
#include "LevelVariantSets.h"
#include "UObject/Package.h"
#include "Variant.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"

#include <cstring>

using testing::ElementsAre;
using testing::IsEmpty;

namespace LevelVariantsTest
{
	const FOutcome Created{"Success Configuration Create LevelVariantSet", "", SNotificationItem::CS_Success, 7.0f};
	const FOutcome Adopted{"Success Configuration Assigned Existing Asset", "It exits an LevelVariantSets with the suffix and had been assigned to configurator", SNotificationItem::CS_Success, 7.0f};
	const FOutcome Updated{"Success Configuration LevelVariantSets Updated", "Configurator already has a LevelVariantSet. It had been updated", SNotificationItem::CS_Success, 7.0f};
	const FOutcome NoSets{"Fail to Fill Out Level Variant", "Level variant is null", SNotificationItem::CS_Fail, 7.0f};
	const FOutcome FillFailed{"Failed Configuration LevelVariantSet Creation", "Configurator ID doesn't match", SNotificationItem::CS_Fail, 7.0f};
	const char* const FillFailedLine = "Warning: UVelmorantEditorUtilitiesLibrary::CreateConfiguratorDataAssetFromConfigurator :: Failed \n Configurator ID doesn't match";

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

	void Generate(UVelmorantConfiguratorDataAsset* Asset)
	{
		UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset);
	}
}

using namespace LevelVariantsTest;

class LevelVariants : public FConfiguratorTest
{
protected:
	/** A data asset in memory, "/Game/Towers/Data", with one room. */
	UVelmorantConfiguratorDataAsset* MakeDataAsset(const TCHAR* ConfiguratorName, std::initializer_list<FVelmorantConfigGroup> Groups)
	{
		UVelmorantConfiguratorDataAsset* Asset = MakeDataAssetAt(TEXT("/Game/Towers"), TEXT("Data"));
		Asset->ConfiguratorName = ConfiguratorName;
		FVelmorantConfigRoom& Room = Asset->ConfiguratorUnit.Rooms.AddDefaulted_GetRef();
		Room.Name = TEXT("Kitchen");
		Room.Groups = Groups;
		return Asset;
	}

	/** The data asset that an earlier editor saved. */
	static UVelmorantConfiguratorDataAsset* LoadDataAsset()
	{
		UVelmorantConfiguratorDataAsset* Asset = LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Towers/Data.Data"));
		EXPECT_NE(Asset, nullptr);
		return Asset;
	}
};

TEST_F(LevelVariants, MakesASetPerRoomAndGroupAndAVariantPerProduct)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak"), TEXT("Lacquer")}), MakeGroup(TEXT("Empty"), {})});
	FVelmorantConfigRoom& Bath = Asset->ConfiguratorUnit.Rooms.AddDefaulted_GetRef();
	Bath.Name = TEXT("Bath");
	Bath.Groups.Add(MakeGroup(TEXT("Tiles: floor - wall"), {TEXT("Grès \"Alcalá\"")}));

	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Towers/LevelVariant_Tower.LevelVariant_Tower");
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer", "Kitchen - Empty:", "Bath - Tiles: floor - wall: Grès \"Alcalá\""));
	EXPECT_TRUE(FindPackage(nullptr, TEXT("/Game/Towers/LevelVariant_Tower"))->IsDirty());
	EXPECT_FALSE(Folder.Exists("Project/Content/Towers")) << "saving is the designer's";
}

TEST_F(LevelVariants, RewritesTheTextOfASetAndKeepsThatOfAVariant)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("fronts"), {TEXT("oak")})});
	Generate(Asset);
	Asset->ConfiguratorUnit.Rooms[0].Groups = {MakeGroup(TEXT("FRONTS"), {TEXT("OAK")})};
	Generate(Asset);
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - FRONTS: oak"));
}

TEST_F(LevelVariants, GroupsWithTheSameCombinedNameShareASet)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")}), MakeGroup(TEXT("Worktop"), {TEXT("Stone")}), MakeGroup(TEXT("Fronts"), {TEXT("Steel"), TEXT("Oak")})});
	FVelmorantConfigRoom& Other = Asset->ConfiguratorUnit.Rooms.AddDefaulted_GetRef();
	Other.Name = TEXT("Kitchen - Worktop");
	Other.Groups.Add(MakeGroup(TEXT("Edge"), {TEXT("Round")}));
	Asset->ConfiguratorUnit.Rooms[0].Groups.Add(MakeGroup(TEXT("Worktop - Edge"), {TEXT("Square")}));
	Generate(Asset);
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Steel", "Kitchen - Worktop: Stone", "Kitchen - Worktop - Edge: Square, Round"));
}

TEST_F(LevelVariants, AdoptsAnAssetThatEndsInTheConfiguratorsName)
{
	const struct
	{
		const char* Behaviour;
		const TCHAR* Existing;
		const TCHAR* Configurator;
		bool bAdopted;
	} Cases[] = {
		{"any prefix", TEXT("Old_Tower"), TEXT("Tower"), true},
		{"letter case does not count", TEXT("Sales_Sets_tOWER"), TEXT("Tower"), true},
		{"the last part only", TEXT("Old_Tower_A"), TEXT("Tower_A"), false},
		{"the whole last part", TEXT("Old_BigTower"), TEXT("Tower"), false},
		{"no underscore", TEXT("Tower"), TEXT("Tower"), false},
		{"another name", TEXT("Old_Loft"), TEXT("Tower"), false},
		{"a part that is missing is None", TEXT("Tower"), TEXT("None"), true},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		StartEditor();
		ULevelVariantSets* Existing = MakeLevelVariantSets(TEXT("/Game/Elsewhere"), Case.Existing);
		UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(Case.Configurator, {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
		Generate(Asset);
		EXPECT_THAT(TakeOutcomes(), ElementsAre(Case.bAdopted ? Adopted : Created));
		EXPECT_EQ(Asset->LevelVariantSets.ResolveObject() == Existing, Case.bAdopted);
		EXPECT_EQ(Describe(Existing).size(), Case.bAdopted ? 1u : 0u);
	}
}

TEST_F(LevelVariants, AdoptsTheFirstOfSeveralThatFitBehindOthersThatDoNot)
{
	StartEditor();
	for (const TCHAR* Name : {TEXT("A_Loft"), TEXT("B_Tower"), TEXT("C_Tower"), TEXT("D_Last")})
	{
		MakeLevelVariantSets(TEXT("/Game/Elsewhere"), Name);
	}
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {});
	Generate(Asset);
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Elsewhere/B_Tower.B_Tower");
	Asset->ConfiguratorName = TEXT("Last");
	Asset->LevelVariantSets.Reset();
	Generate(Asset);
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Elsewhere/D_Last.D_Last");
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Adopted, Adopted));
}

TEST_F(LevelVariants, AdoptsAnAssetThatIsOnDiskOnly)
{
	StartEditor();
	MakeLevelVariantSets(TEXT("/Game/Elsewhere"), TEXT("Old_Tower"));
	SaveAndRestart();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Adopted));
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Elsewhere/Old_Tower.Old_Tower");
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak"));
}

TEST_F(LevelVariants, MakesANewAssetForAPathThatIsNotLoadedAlthoughItTellsOfAnUpdate)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	Asset->LevelVariantSets = FSoftObjectPath(TEXT("/Game/Gone/Sets.Sets"));
	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Updated, Created));
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Towers/LevelVariant_Tower.LevelVariant_Tower");
}

TEST_F(LevelVariants, TheLinkOfASavedDataAssetIsAnUnsavedChange)
{
	const struct
	{
		const char* Behaviour;
		const TCHAR* Existing; // level variant sets that are there already
		const TCHAR* OldPath; // what the data asset names at first
		const char* Linked;
	} Cases[] = {
		{"created", nullptr, TEXT(""), "/Game/Towers/LevelVariant_Tower.LevelVariant_Tower"},
		{"adopted", TEXT("Old_Tower"), TEXT(""), "/Game/Elsewhere/Old_Tower.Old_Tower"},
		{"created in place of one that is gone", nullptr, TEXT("/Game/Gone/Sets.Sets"), "/Game/Towers/LevelVariant_Tower.LevelVariant_Tower"},
	};
	for (const auto& Case : Cases)
	{
		SCOPED_TRACE(Case.Behaviour);
		std::filesystem::remove_all(Folder.GetNative("Project/Content"));
		StartEditor();
		if (Case.Existing)
		{
			MakeLevelVariantSets(TEXT("/Game/Elsewhere"), Case.Existing);
		}
		MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})})->LevelVariantSets = FSoftObjectPath(FString(Case.OldPath));
		SaveAndRestart();

		Generate(LoadDataAsset());
		EXPECT_THAT(Unsaved(), ElementsAre(Case.Existing ? "/Game/Elsewhere/Old_Tower" : "/Game/Towers/Data", Case.Existing ? "/Game/Towers/Data" : "/Game/Towers/LevelVariant_Tower"));
		SaveAndRestart();
		UVelmorantConfiguratorDataAsset* Asset = LoadDataAsset();
		EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), Case.Linked);
		ASSERT_NE(Asset->LevelVariantSets.TryLoad(), nullptr);
		EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak"));

		Generate(Asset);
		EXPECT_THAT(Unsaved(), IsEmpty()) << "all of that is there already";
	}
}

TEST_F(LevelVariants, OnlyWhatChangesIsUnsaved)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	Generate(Asset);
	SaveAll();
	Asset->ConfiguratorUnit.Rooms[0].Groups = {MakeGroup(TEXT("FRONTS"), {TEXT("Oak")})};
	Generate(Asset);
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Towers/LevelVariant_Tower")) << "the text of the set is another";
	SaveAll();
	Asset->ConfiguratorUnit.Rooms[0].Groups[0].Products.AddDefaulted_GetRef().Name = TEXT("Steel");
	Generate(Asset);
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Towers/LevelVariant_Tower"));
}

TEST_F(LevelVariants, WhoListensToTheSetsMayChangeTheRoomsMeanwhile)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak"), TEXT("Steel")}), MakeGroup(TEXT("Worktop"), {TEXT("Stone")})});
	const FDelegateHandle Listener = FCoreUObjectDelegates::OnObjectModified.AddLambda([Asset](UObject* Object) {
		if (Object->IsA<ULevelVariantSets>())
		{
			Asset->ConfiguratorUnit.Rooms.Empty();
		}
	});
	Generate(Asset);
	FCoreUObjectDelegates::OnObjectModified.Remove(Listener);
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Steel", "Kitchen - Worktop: Stone"));
}

TEST_F(LevelVariants, ANameThatNoAssetCanHaveEndsInTwoFailures)
{
	StartEditor();
	TakeModuleLog();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT(""), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	for (const TCHAR* Name : {TEXT("Tower:A"), TEXT("Tower\tA")}) // only blanks are replaced
	{
		Asset->ConfiguratorName = Name;
		Generate(Asset);
		EXPECT_THAT(TakeOutcomes(), ElementsAre(NoSets, FillFailed)) << ToUtf8(FString(Name));
		EXPECT_THAT(TakeModuleLog(), ElementsAre(FillFailedLine));
		EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	}
}

TEST_F(LevelVariants, NeverReplacesASavedAssetUnasked)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower A"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	Generate(Asset);
	SaveAll();
	const std::string Saved = ReadProjectFile("Content/Towers/LevelVariant_Tower_A.uasset.json");

	StartEditor(); // on disk, not loaded
	TakeModuleLog();
	Generate(LoadDataAsset());
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Updated, NoSets, FillFailed));
	EXPECT_THAT(Unsaved(), IsEmpty());
	EXPECT_THAT(TakeModuleLog(), ElementsAre(FillFailedLine));
	ASSERT_EQ(HostQuestions::GetAsked().Num(), 1);
	EXPECT_EQ(ToUtf8(HostQuestions::GetAsked()[0].Question.Kind), "ReplaceAsset");
	EXPECT_EQ(HostQuestions::GetAsked()[0].Source, EHostAnswerSource::Unattended);
	EXPECT_EQ(ReadProjectFile("Content/Towers/LevelVariant_Tower_A.uasset.json"), Saved);
}

TEST_F(LevelVariants, ANoneNameIsValidEnough)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("None"), {});
	Asset->ConfiguratorUnit.Rooms.Empty();
	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Created));
	EXPECT_EQ(ToUtf8(Asset->LevelVariantSets.ToString()), "/Game/Towers/LevelVariant_None.LevelVariant_None");

	TGuardValue<FName> Broken(Asset->ConfiguratorName, FName());
	std::memset(static_cast<void*>(&Asset->ConfiguratorName), 0x7f, sizeof(FName)); // no name of the table
	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Failed Configuration LevelVariantSet Creation ", "Configurator data not valid to create LevelVariantSet", SNotificationItem::CS_Fail, 7.0f}));
}

TEST_F(LevelVariants, DoNothingWithoutADataAsset)
{
	StartEditor();
	Generate(nullptr);
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}

TEST_F(LevelVariants, FillingTellsWhetherThereWasSomethingToFill)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak")})});
	EXPECT_FALSE(UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Asset, nullptr));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoSets));

	ULevelVariantSets* Sets = MakeLevelVariantSets(TEXT("/Game"), TEXT("Sets"));
	EXPECT_TRUE(UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Asset, Sets));
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - Fronts: Oak"));

	EXPECT_TRUE(UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(nullptr, Sets)) << "nothing to add";
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	EXPECT_EQ(Describe(Sets).size(), 1u);
	EXPECT_FALSE(UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(nullptr, nullptr));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoSets));
}

TEST_F(LevelVariants, SavedAssetsLoadBackEqualAndGoOnFromThere)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"), {MakeGroup(TEXT("Fronts"), {TEXT("Oak"), TEXT("Grès \"Alcalá\"")}), MakeGroup(TEXT("Empty"), {})});
	Generate(Asset);
	const std::vector<std::string> Before = DescribeVariants(Asset);
	SaveAndRestart();
	Asset = LoadDataAsset();
	ASSERT_NE(Asset->LevelVariantSets.TryLoad(), nullptr);
	EXPECT_EQ(DescribeVariants(Asset), Before);
	Asset->ConfiguratorUnit.Rooms[0].Groups[1] = MakeGroup(TEXT("Empty"), {TEXT("Full")});
	Generate(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Updated));
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre(Before[0], "Kitchen - Empty: Full"));
}
