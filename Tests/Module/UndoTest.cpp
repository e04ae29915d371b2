// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "HostEditor.h"
#include "HostObjects.h"
#include "HostQuestions.h"
#include "LevelVariantSets.h"
#include "Selection.h"
#include "UnitVolumeActor.h"
#include "VariantSet.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantLevelVariantSetsActor.h"
#include "VelmorantProjectRequestManager.h"

using testing::ElementsAre;
using testing::IsEmpty;

/** The operations, taken back and done again. */
class UndoOfOperations : public FConfiguratorTest
{
protected:
	static constexpr const TCHAR* Map = TEXT("/Game/Maps/Tower");

	/** Starts with the data asset of a one-room configurator, in a level of its own; all of it saved. */
	UVelmorantConfiguratorDataAsset* StartWithAsset()
	{
		StartWithConfigurators(OneRoomConfigurator);
		UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower"));
		EXPECT_TRUE(HostEditor::SaveOpenMapAs(Map));
		SaveAll();
		return Asset;
	}

	/** The same, with its level variant sets. */
	UVelmorantConfiguratorDataAsset* StartWithSets()
	{
		UVelmorantConfiguratorDataAsset* Asset = StartWithAsset();
		Generate(Asset);
		SaveAll();
		GEditor->ResetTransaction(FText());
		return Asset;
	}

	static void Generate(UVelmorantConfiguratorDataAsset* Asset) { UVelmorantEditorUtilitiesLibrary::CreateVariantSetFromConfigurator(Asset); }
	static void Place(UVelmorantConfiguratorDataAsset* Asset) { UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel(Asset); }

	/** What the service offers now arrives. */
	void Refresh(UVelmorantConfiguratorDataAsset* Asset)
	{
		EXPECT_TRUE(UVelmorantEditorUtilitiesLibrary::UpdateConfiguratorDataAssetInfo(Asset));
		Wait(0.0);
	}

	static bool Undo() { return GEditor->UndoTransaction(); }
	static bool Redo() { return GEditor->RedoTransaction(); }

	/** Titles, the oldest first; undone ones in brackets. */
	static std::vector<std::string> Steps()
	{
		std::vector<std::string> Titles;
		const int32 NumDone = GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount();
		for (int32 Index = 0; Index < GEditor->Trans->GetQueueLength(); ++Index)
		{
			const std::string Step = ToUtf8(GEditor->Trans->GetTransaction(Index)->GetTitle());
			Titles.push_back(Index < NumDone ? Step : "[" + Step + "]");
		}
		return Titles;
	}

	static UWorld* GetWorld() { return GEditor->GetEditorWorldContext().World(); }

	static AVelmorantLevelVariantSetsActor* FindActor()
	{
		TActorIterator<AVelmorantLevelVariantSetsActor> Actor(GetWorld());
		return Actor ? *Actor : nullptr;
	}

	static std::vector<std::string> Selected()
	{
		std::vector<std::string> Labels;
		for (int32 Index = 0; Index < GEditor->GetSelectedActorCount(); ++Index)
		{
			Labels.push_back(ToUtf8(CastChecked<AActor>(GEditor->GetSelectedActors()->GetSelectedObject(Index))->GetActorLabel()));
		}
		return Labels;
	}
};

TEST_F(UndoOfOperations, TheLinkOfCreatedSetsGoesTheAssetStays)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithAsset();
	Generate(Asset);
	EXPECT_THAT(Steps(), ElementsAre("Create LevelVariantSet"));
	ULevelVariantSets* Sets = CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());
	SaveAll();

	ASSERT_TRUE(Undo());
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_EQ(FindObject<ULevelVariantSets>(nullptr, TEXT("/Game/Velmorant/Configurator/LevelVariant_Tower.LevelVariant_Tower")), Sets);
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Velmorant/Configurator/Configurator_Tower", "/Game/Velmorant/Configurator/LevelVariant_Tower"));

	ASSERT_TRUE(Redo());
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	Undo();
	HostObjects::CollectGarbage();
	Generate(Asset);
	EXPECT_EQ(Asset->LevelVariantSets.ResolveObject(), Sets) << "what stayed is adopted";
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	EXPECT_FALSE(Redo());
}

TEST_F(UndoOfOperations, AdoptedSetsAreWhatTheyWere)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithAsset();
	ULevelVariantSets* Sets = MakeLevelVariantSets(TEXT("/Game/Elsewhere"), TEXT("Old_Tower"));
	SaveAll();
	Generate(Asset);
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	ASSERT_TRUE(Undo());
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_THAT(Describe(Sets), IsEmpty());
	EXPECT_FALSE(Undo());
	Redo();
	EXPECT_EQ(Asset->LevelVariantSets.ResolveObject(), Sets);
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
}

TEST_F(UndoOfOperations, AnAssetThatWasReplacedDoesNotComeBack)
{
	StartWithConfigurators(R"({"name": "Tower A", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak"]}]}]})");
	UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower A"));
	ULevelVariantSets* Replaced = MakeLevelVariantSets(TEXT("/Game/Velmorant/Configurator"), TEXT("LevelVariant_Tower_A"));
	HostQuestions::SetResponder([](const FHostQuestion&) { return FHostAnswer{TEXT("Yes"), {}}; });
	Generate(Asset);
	UObject* Sets = Asset->LevelVariantSets.ResolveObject();
	ASSERT_NE(Sets, nullptr);
	ASSERT_NE(Sets, Replaced);
	ASSERT_TRUE(Undo());
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_FALSE(IsValid(Replaced));
	EXPECT_EQ(Replaced->GetOutermost(), GetTransientPackage());
	EXPECT_EQ(FindObject<ULevelVariantSets>(nullptr, TEXT("/Game/Velmorant/Configurator/LevelVariant_Tower_A.LevelVariant_Tower_A")), Sets);
}

TEST_F(UndoOfOperations, NothingIsLeftOfTheLinkAfterUndoSaveAndRestart)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithAsset();
	Place(Asset);
	SaveAll();
	ASSERT_TRUE(Undo());
	EXPECT_EQ(Unsaved().size(), 3u) << "data asset, level variant sets and level";
	SaveAndRestart(Map);
	EXPECT_EQ(FindActor(), nullptr);
	Asset = LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Velmorant/Configurator/Configurator_Tower.Configurator_Tower"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_THAT(Steps(), IsEmpty());
}

TEST_F(UndoOfOperations, PlacingIsOneStepWithTheSetsThatItMakes)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithAsset();
	AActor* Other = GetWorld()->SpawnActor<AActor>();
	Other->SetActorLabel(TEXT("Other"));
	GEditor->SelectActor(Other, true, true);
	Place(Asset);
	EXPECT_THAT(Steps(), ElementsAre("Place LevelVariantActor into Level"));
	const TWeakObjectPtr<AVelmorantLevelVariantSetsActor> Actor = FindActor();

	ASSERT_TRUE(Undo());
	EXPECT_EQ(FindActor(), nullptr);
	EXPECT_TRUE(Asset->LevelVariantSets.IsNull());
	EXPECT_THAT(Selected(), ElementsAre("Other"));
	HostObjects::CollectGarbage();

	ASSERT_TRUE(Redo());
	ASSERT_EQ(FindActor(), Actor.Get());
	EXPECT_EQ(Actor->ConfiguratorData, Asset);
	EXPECT_EQ(Actor->LevelVariantSets, Asset->LevelVariantSets);
	EXPECT_EQ(Actor->GetActorLocation(), FVector(0.0, 0.0, 500.0));
	EXPECT_THAT(Selected(), ElementsAre(ToUtf8(Actor->GetActorLabel())));

	Undo();
	Place(Asset);
	EXPECT_NE(FindActor(), Actor.Get(true)) << "a new one";
	EXPECT_THAT(Steps(), ElementsAre("Place LevelVariantActor into Level"));
}

TEST_F(UndoOfOperations, AnUpdatedActorGetsItsDataBackAndStaysWhereItIs)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithSets();
	Place(Asset);
	FindActor()->SetActorLocation(FVector(1.0, 2.0, 3.0));
	UVelmorantConfiguratorDataAsset* Other = MakeDataAssetAt(TEXT("/Game/Towers"), TEXT("Loft"));
	Other->LevelVariantSets = FSoftObjectPath(TEXT("/Game/Towers/Sets.Sets"));
	Place(Other);
	EXPECT_EQ(FindActor()->ConfiguratorData, Other);
	ASSERT_TRUE(Undo());
	EXPECT_EQ(FindActor()->ConfiguratorData, Asset);
	EXPECT_EQ(FindActor()->LevelVariantSets, Asset->LevelVariantSets);
	EXPECT_EQ(FindActor()->GetActorLocation(), FVector(1.0, 2.0, 3.0));
	ASSERT_TRUE(Undo());
	EXPECT_EQ(FindActor(), nullptr);
	EXPECT_FALSE(Undo());
}

TEST_F(UndoOfOperations, EachRunOfTheRefreshHandlerThatChangesSomethingIsAStep)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithSets();
	Refresh(Asset);
	EXPECT_THAT(Steps(), IsEmpty()) << "the service has nothing new";
	EXPECT_THAT(Unsaved(), IsEmpty());

	WriteConfigurators(R"({"name": "Tower", "rooms": [{"name": "Kitchen", "groups": [{"name": "Fronts", "products": ["Oak", "Steel"]}]}]})");
	Refresh(Asset); // now two handlers run
	EXPECT_THAT(Steps(), ElementsAre("Update LevelVariantSet Data")) << "the second one brings what is there";
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
	SaveAll();

	ASSERT_TRUE(Undo());
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer"));
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	EXPECT_EQ(Unsaved().size(), 2u);
	ASSERT_TRUE(Redo());
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Steel"));
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer, Steel"));
}

TEST_F(UndoOfOperations, SetsThatOtherToolsMadeAreUndoneToo)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithSets();
	ULevelVariantSets* Sets = CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject());
	UObject* const Objects[] = {Asset, Sets, Sets->GetVariantSet(0)};
	for (UObject* Object : Objects)
	{
		Object->ClearFlags(RF_Transactional);
	}
	Asset->ConfiguratorUnit.Rooms[0].Groups[0].Name = TEXT("FRONTS");
	UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Asset, Sets);
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - FRONTS: Oak, Lacquer"));
	EXPECT_THAT(Steps(), ElementsAre("Fill Out LevelVariantSet"));
	ASSERT_TRUE(Undo());
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
	Asset->ConfiguratorUnit.Rooms[0].Groups[0].Name = TEXT("Fronts");
	Sets->GetVariantSet(0)->ClearFlags(RF_Transactional);

	WriteConfigurators(R"({"name": "Tower", "rooms": [{"name": "Kitchen", "groups": [{"name": "FRONTS", "products": ["Steel"]}, {"name": "Worktop", "products": ["Stone"]}]}]})");
	Refresh(Asset);
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - FRONTS: Oak, Lacquer, Steel", "Kitchen - Worktop: Stone"));
	ASSERT_TRUE(Undo());
	EXPECT_THAT(DescribeRooms(Asset), ElementsAre("Kitchen/Fronts: Oak, Lacquer"));
	EXPECT_THAT(Describe(Sets), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));
}

TEST_F(UndoOfOperations, WhatChangesNothingLeavesTheStepsAlone)
{
	UVelmorantConfiguratorDataAsset* Asset = StartWithSets();
	Place(Asset);
	SaveAll();
	Undo();
	Redo();
	Place(Asset);
	Generate(Asset);
	UVelmorantEditorUtilitiesLibrary::FillOutLevelVariantWithConfigurator(Asset, CastChecked<ULevelVariantSets>(Asset->LevelVariantSets.ResolveObject()));
	Refresh(Asset);
	EXPECT_FALSE(UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel());
	EXPECT_THAT(Steps(), ElementsAre("Place LevelVariantActor into Level"));
	Undo();
	Generate(Asset);
	EXPECT_THAT(Steps(), ElementsAre("[Place LevelVariantActor into Level]")) << "it can still be redone";
}

TEST_F(UndoOfOperations, AssignedUnitsGoBackAlsoWhereAVolumeIsGone)
{
	WriteHarborTower(R"("unitGroups": [{"keyCode": "A", "name": "Tower A", "units": [{"keyCode": "A-1", "name": "1", "unitID": 7}, {"keyCode": "A-2", "name": "2", "unitID": 3}]}])");
	StartWithProject();
	GetRequests()->SetSelectedUnitGroup(TEXT("A"));
	AUnitVolumeActor* First = GetWorld()->SpawnActor<AUnitVolumeActor>();
	AUnitVolumeActor* Second = GetWorld()->SpawnActor<AUnitVolumeActor>();
	First->UniqueIdentifier = FUnitVolumeUniqueIdentifier(1, TEXT("a-2"));
	const auto Describe = [First, Second]() {
		return ToUtf8(FString::Printf(TEXT("%d %s, %d %s"), First->UniqueIdentifier.UnitID, *First->UniqueIdentifier.Keycode, Second->UniqueIdentifier.UnitID, *Second->UniqueIdentifier.Keycode));
	};
	ASSERT_TRUE(UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel());
	ASSERT_TRUE(UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel());
	EXPECT_EQ(Describe(), "3 A-2, 7 A-1");
	EXPECT_THAT(Steps(), ElementsAre("Assign Units to Unit Volumes")) << "the second time brings the same";

	ASSERT_TRUE(HostEditor::SaveOpenMapAs(Map));
	Second->Destroy();
	ASSERT_TRUE(HostEditor::SaveOpenMap());
	HostObjects::CollectGarbage();
	ASSERT_TRUE(Undo());
	EXPECT_EQ(Describe(), "1 a-2, -1 ");
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Maps/Tower"));
	EXPECT_FALSE(IsValid(Second));
	ASSERT_TRUE(Redo());
	EXPECT_EQ(Describe(), "3 A-2, 7 A-1");
	SaveAndRestart(Map);
	TActorIterator<AUnitVolumeActor> Volume(GetWorld());
	ASSERT_TRUE(Volume) << "the saved level has a volume";
	EXPECT_EQ(Volume->UniqueIdentifier.UnitID, 3);
	++Volume;
	EXPECT_FALSE(Volume) << "the other one was destroyed";
}
