// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorTest.h"
#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "HostDetailsView.h"
#include "HostEditor.h"
#include "LevelVariantSets.h"
#include "PropertyHandle.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantLevelVariantSetsActor.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace LevelVariantActorTest
{
	const FOutcome Found{"Found LevelVariant at Current Level", "Updated current Actor with Configurator Data", SNotificationItem::CS_Success, 7.0f};
	const FOutcome NoActor{"Failed Configuration Create LevelVariantActor", "Couldn't create a LevelVariantActor in current level", SNotificationItem::CS_Fail, 7.0f};

	const TCHAR* const Map = TEXT("/Game/Maps/Tower");

	UWorld* GetWorld()
	{
		return GEditor->GetEditorWorldContext(false).World();
	}

	std::vector<AVelmorantLevelVariantSetsActor*> FindActors()
	{
		std::vector<AVelmorantLevelVariantSetsActor*> Actors;
		for (TActorIterator<AVelmorantLevelVariantSetsActor> Actor(GetWorld()); Actor; ++Actor)
		{
			Actors.push_back(*Actor);
		}
		return Actors;
	}

	void Place(UVelmorantConfiguratorDataAsset* Asset)
	{
		UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel(Asset);
	}
}

using namespace LevelVariantActorTest;

class LevelVariantActor : public FConfiguratorTest
{
protected:
	/** A data asset "/Game/Towers/<Name>" with a path to level variant sets, which need not exist. */
	static UVelmorantConfiguratorDataAsset* MakeDataAsset(const TCHAR* Name)
	{
		UVelmorantConfiguratorDataAsset* Asset = MakeDataAssetAt(TEXT("/Game/Towers"), Name);
		Asset->ConfiguratorName = Name;
		Asset->LevelVariantSets = FSoftObjectPath(FString(TEXT("/Game/Towers/Sets.")) + Name);
		return Asset;
	}
};

TEST_F(LevelVariantActor, IsSelectedAloneAndInView)
{
	StartEditor();
	AActor* Other = GetWorld()->SpawnActor(AActor::StaticClass());
	GEditor->SelectActor(Other, true, true);
	HostEditor::SelectSurfaces(2);
	std::vector<AActor*> Told; // the first selected actor, at each announcement
	USelection::SelectionChangedEvent.AddLambda([&Told](UObject* Selection) { Told.push_back(CastChecked<USelection>(Selection)->GetTop<AActor>()); });
	Place(MakeDataAsset(TEXT("Tower")));

	EXPECT_EQ(GEditor->GetSelectedActorCount(), 1);
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(FindActors()[0]));
	EXPECT_EQ(HostEditor::GetNumSelectedSurfaces(), 0);
	EXPECT_THAT(Told, ElementsAre(FindActors()[0]));
	for (const HostEditor::FViewport& Viewport : HostEditor::GetViewports())
	{
		EXPECT_EQ(Viewport.NumMoves, Viewport.bActive ? 1 : 0) << ToUtf8(Viewport.Name);
		EXPECT_EQ(Viewport.FocusedActors, Viewport.bActive ? TArray<FString>{FindActors()[0]->GetActorLabel()} : TArray<FString>());
	}
}

TEST_F(LevelVariantActor, IsUpdatedTheSecondTime)
{
	StartEditor();
	Place(MakeDataAsset(TEXT("Tower")));
	FindActors()[0]->SetActorLocation(FVector(1.0, 2.0, 3.0));
	GEditor->SelectNone(true, true);
	UVelmorantConfiguratorDataAsset* Other = MakeDataAsset(TEXT("Loft"));
	Place(Other);

	EXPECT_THAT(TakeOutcomes(), ElementsAre(Found));
	ASSERT_EQ(FindActors().size(), 1u);
	EXPECT_EQ(ToUtf8(FindActors()[0]->LevelVariantSets.ToString()), "/Game/Towers/Sets.Loft");
	EXPECT_EQ(FindActors()[0]->ConfiguratorData, Other);
	EXPECT_EQ(FindActors()[0]->GetActorLocation(), FVector(1.0, 2.0, 3.0)) << "the designer has moved it";
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(FindActors()[0]));
}

TEST_F(LevelVariantActor, IsSelectedAlthoughItIsHidden)
{
	StartEditor();
	Place(MakeDataAsset(TEXT("Tower")));
	FHostDetailsView(TArray<UObject*>{FindActors()[0]}).FindHandle(TEXT("bHidden"))->SetValue(true);
	GEditor->SelectNone(true, true);
	Place(MakeDataAsset(TEXT("Loft")));
	EXPECT_TRUE(FindActors()[0]->IsHidden());
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(FindActors()[0]));
}

TEST_F(LevelVariantActor, OnlyTheFirstOneOfALevelCounts)
{
	StartEditor();
	GetWorld()->SpawnActor(AVelmorantLevelVariantSetsActor::StaticClass());
	GetWorld()->SpawnActor(AVelmorantLevelVariantSetsActor::StaticClass());
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"));
	Place(Asset);
	ASSERT_EQ(FindActors().size(), 2u);
	EXPECT_EQ(FindActors()[0]->ConfiguratorData, Asset);
	EXPECT_EQ(FindActors()[1]->ConfiguratorData, nullptr);
}

TEST_F(LevelVariantActor, ADestroyedOneDoesNotCount)
{
	StartEditor();
	Place(MakeDataAsset(TEXT("Tower")));
	FindActors()[0]->Destroy();
	Place(MakeDataAsset(TEXT("Loft")));
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	ASSERT_EQ(FindActors().size(), 1u);
	EXPECT_EQ(ToUtf8(FindActors()[0]->ConfiguratorData->ConfiguratorName), "Loft");
}

TEST_F(LevelVariantActor, GetsLevelVariantSetsMadeFirst)
{
	StartWithConfigurators(OneRoomConfigurator);
	UVelmorantConfiguratorDataAsset* Asset = CreateAsset(TEXT("Tower"));
	Place(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Success Configuration Create LevelVariantSet", "", SNotificationItem::CS_Success, 7.0f}));
	EXPECT_EQ(ToUtf8(FindActors()[0]->LevelVariantSets.ToString()), "/Game/Velmorant/Configurator/LevelVariant_Tower.LevelVariant_Tower");
	EXPECT_THAT(DescribeVariants(Asset), ElementsAre("Kitchen - Fronts: Oak, Lacquer"));

	Place(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Found)) << "the sets are there now";
}

TEST_F(LevelVariantActor, IsPlacedWithoutSetsWhenNoneCouldBeMade)
{
	StartEditor();
	UVelmorantConfiguratorDataAsset* Asset = MakeDataAsset(TEXT("Tower"));
	Asset->ConfiguratorName = TEXT("Tower:A");
	Asset->LevelVariantSets.Reset();
	Place(Asset);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(FOutcome{"Fail to Fill Out Level Variant", "Level variant is null", SNotificationItem::CS_Fail, 7.0f}, FOutcome{"Failed Configuration LevelVariantSet Creation", "Configurator ID doesn't match", SNotificationItem::CS_Fail, 7.0f}));
	ASSERT_EQ(FindActors().size(), 1u);
	EXPECT_TRUE(FindActors()[0]->LevelVariantSets.IsNull());
	EXPECT_EQ(FindActors()[0]->ConfiguratorData, Asset);
}

TEST_F(LevelVariantActor, ReportsThatItCannotBeSpawned)
{
	StartEditor();
	AActor* Other = GetWorld()->SpawnActor(AActor::StaticClass());
	GEditor->SelectActor(Other, true, true);
	GetWorld()->bIsTearingDown = true;
	Place(MakeDataAsset(TEXT("Tower")));
	EXPECT_THAT(TakeOutcomes(), ElementsAre(NoActor));
	EXPECT_TRUE(GEditor->GetSelectedActors()->IsSelected(Other)) << "the selection is left alone";
}

TEST_F(LevelVariantActor, DoesNothingWithoutADataAsset)
{
	StartEditor();
	Place(nullptr);
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
	EXPECT_TRUE(FindActors().empty());
}

TEST_F(LevelVariantActor, IsFoundAgainInASavedLevelAndItsUpdateIsAnUnsavedChange)
{
	StartEditor();
	ASSERT_TRUE(HostEditor::SaveOpenMapAs(Map));
	MakeDataAsset(TEXT("Loft"));
	Place(MakeDataAsset(TEXT("Tower")));
	SaveAndRestart(Map);
	ASSERT_EQ(FindActors().size(), 1u);
	EXPECT_EQ(FindActors()[0]->GetActorLocation(), FVector(0.0, 0.0, 500.0));
	EXPECT_EQ(ToUtf8(FindActors()[0]->LevelVariantSets.ToString()), "/Game/Towers/Sets.Tower");
	ASSERT_NE(FindActors()[0]->ConfiguratorData, nullptr);
	EXPECT_EQ(ToUtf8(FindActors()[0]->ConfiguratorData->GetPathName()), "/Game/Towers/Tower.Tower");

	Place(FindActors()[0]->ConfiguratorData);
	EXPECT_THAT(TakeOutcomes(), ElementsAre(Found));
	EXPECT_THAT(Unsaved(), IsEmpty()) << "it has this data already";

	Place(LoadObject<UVelmorantConfiguratorDataAsset>(nullptr, TEXT("/Game/Towers/Loft.Loft")));
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Maps/Tower"));
	SaveAndRestart(Map);
	ASSERT_EQ(FindActors().size(), 1u);
	EXPECT_EQ(ToUtf8(FindActors()[0]->LevelVariantSets.ToString()), "/Game/Towers/Sets.Loft");
	ASSERT_NE(FindActors()[0]->ConfiguratorData, nullptr);
	EXPECT_EQ(ToUtf8(FindActors()[0]->ConfiguratorData->ConfiguratorName), "Loft");
}
