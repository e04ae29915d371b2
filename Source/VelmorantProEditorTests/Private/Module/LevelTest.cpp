// Copyright Velmorant. All Rights Reserved.

#include "Blueprint/UserWidget.h"
#include "CoreMinimal.h"
#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "LevelVariantSets.h"
#include "MinimapConfigAsset.h"
#include "MinimapLevelController.h"
#include "Selection.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Support/TestPackage.h"
#include "Support/TestPanels.h"
#include "UObject/UnrealType.h"
#include "UnitVolumeActor.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantLevelVariantSetsActor.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace VelmorantLevelTest
{
	template<typename ActorType>
	TArray<ActorType*> FindActors(UWorld* World)
	{
		TArray<ActorType*> Actors;
		for (TActorIterator<ActorType> Actor(World); Actor; ++Actor)
		{
			Actors.Add(*Actor);
		}
		return Actors;
	}

	AUnitVolumeActor* SpawnVolume(UWorld* World, int32 UnitID, const TCHAR* Keycode)
	{
		AUnitVolumeActor* Volume = World->SpawnActor<AUnitVolumeActor>();
		Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(UnitID, Keycode);
		return Volume;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModulePlacedActorTest, "Velmorant.Module.Level.VariantActorTwice", VelmorantTests::Flags)

bool FVelmorantModulePlacedActorTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const FVelmorantEditorState State;
	const FVelmorantNotificationsAllowed Notifications(false);
	if (!VelmorantLevelTest::FindActors<AVelmorantLevelVariantSetsActor>(State.GetWorld()).IsEmpty())
	{
		AddInfo(TEXT("Left out: the open level has such an actor, which would be changed. Run it with another level."));
		return true;
	}
	AddExpectedErrorPlain(TEXT("Notification not shown: Found LevelVariant at Current Level"), EAutomationExpectedErrorFlags::Contains, 1);
	ULevelVariantSets* Sets = Content.Make<ULevelVariantSets>(TEXT("Sets"));
	UVelmorantConfiguratorDataAsset* First = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("First"));
	UVelmorantConfiguratorDataAsset* Second = Content.Make<UVelmorantConfiguratorDataAsset>(TEXT("Second"));
	First->LevelVariantSets.SetPath(Sets->GetPathName());
	Second->LevelVariantSets.SetPath(Sets->GetPathName());
	UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel(First);
	TArray<AVelmorantLevelVariantSetsActor*> Placed = VelmorantLevelTest::FindActors<AVelmorantLevelVariantSetsActor>(State.GetWorld());
	if (!TestEqual(TEXT("an actor is placed"), Placed.Num(), 1))
	{
		return false;
	}
	TestTrue(TEXT("above the origin"), Placed[0]->GetActorLocation().Equals(FVector(0.0, 0.0, 500.0)));
	TestTrue(TEXT("with the data"), Placed[0]->ConfiguratorData == First && Placed[0]->LevelVariantSets == First->LevelVariantSets);
	UVelmorantEditorUtilitiesLibrary::CreateLevelVariantActorInLevel(Second);
	const TArray<AVelmorantLevelVariantSetsActor*> Actors = VelmorantLevelTest::FindActors<AVelmorantLevelVariantSetsActor>(State.GetWorld());
	if (!TestEqual(TEXT("one actor, also after the second time"), Actors.Num(), 1))
	{
		return false;
	}
	TestTrue(TEXT("with the data of the second"), Actors[0]->ConfiguratorData == Second && Actors[0]->LevelVariantSets == Second->LevelVariantSets);
	TestTrue(TEXT("selected alone"), GEditor->GetSelectedActors()->Num() == 1 && GEditor->GetSelectedActors()->IsSelected(Actors[0]));
	TestEqual(TEXT("each time is a step"), State.CountNewSteps(), 2);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleIdentifiersTest, "Velmorant.Module.Level.UnitIdentifiers", VelmorantTests::Flags)

bool FVelmorantModuleIdentifiersTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	AUnitVolumeActor* Volume = State.GetWorld()->SpawnActor<AUnitVolumeActor>();
	TestEqual(TEXT("a new volume stands for no unit"), Volume->UniqueIdentifier.UnitID, -1);
	TestFalse(TEXT("and has no key code"), Volume->UniqueIdentifier.HasValidKeycode());
	Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(7, TEXT("A-12"));
	TestTrue(TEXT("until it gets one"), Volume->UniqueIdentifier.HasValidKeycode());
	TestFalse(TEXT("without somebody signed in there are no units to assign"), UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel() && State.CountNewSteps() == 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleDuplicatesTest, "Velmorant.Module.Level.Duplicates", VelmorantTests::Flags)

bool FVelmorantModuleDuplicatesTest::RunTest(const FString&)
{
	using namespace VelmorantLevelTest;
	const FVelmorantEditorState State;
	UWorld* World = State.GetWorld();
	AUnitVolumeActor* First = SpawnVolume(World, 7, TEXT("VelmorantTestA"));
	AUnitVolumeActor* Second = SpawnVolume(World, 7, TEXT("velmorantTESTa"));
	SpawnVolume(World, 8, TEXT("VelmorantTestA"));
	SpawnVolume(World, 9, TEXT("VelmorantTestB"));
	SpawnVolume(World, 10, TEXT(""));
	SpawnVolume(World, 10, TEXT(""));
	UVelmorantTestDuplicationList* List = CreateWidget<UVelmorantTestDuplicationList>(World);
	if (!TestNotNull(TEXT("the list opens"), List))
	{
		return false;
	}
	List->CheckForDuplications();
	const TArray<TObjectPtr<UVlmEWUnitVolumeDuplication_Item>> Groups = List->Items.FilterByPredicate([](const TObjectPtr<UVlmEWUnitVolumeDuplication_Item>& Item) { return Item->Identifier.ToString().StartsWith(TEXT("VelmorantTest")); });
	if (TestEqual(TEXT("one group: same number and key code, whatever its case; none without key code"), Groups.Num(), 1))
	{
		TestTrue(TEXT("of both volumes, in order"), Groups[0]->DuplicateActors.Num() == 2 && Groups[0]->DuplicateActors[0] == First && Groups[0]->DuplicateActors[1] == Second);
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantModuleMinimapTest, "Velmorant.Module.Level.Minimap", VelmorantTests::Flags)

bool FVelmorantModuleMinimapTest::RunTest(const FString&)
{
	const FVelmorantTestContent Content;
	const FVelmorantEditorState State;
	if (!VelmorantLevelTest::FindActors<AMinimapLevelController>(State.GetWorld()).IsEmpty())
	{
		AddInfo(TEXT("Left out: the open level has a minimap, which would be found first. Run it with another level."));
		return true;
	}
	UVelmorantTestMinimapTool* Tool = CreateWidget<UVelmorantTestMinimapTool>(State.GetWorld());
	if (!TestNotNull(TEXT("the panel opens"), Tool))
	{
		return false;
	}
	int32 MinFloor = 5;
	int32 MaxFloor = 5;
	TestFalse(TEXT("without controller there are no floors"), Tool->GetMinimapFloorRange(MinFloor, MaxFloor) || Tool->HasMinimapFloors());
	TestTrue(TEXT("but an empty range"), MinFloor == 1 && MaxFloor == 0);
	TestEqual(TEXT("nor an active one"), Tool->GetActiveMinimapFloor(), -1);

	UMinimapConfigAsset* Config = Content.Make<UMinimapConfigAsset>(TEXT("Minimap"));
	Config->Floors.SetNum(3);
	AMinimapLevelController* Controller = State.GetWorld()->SpawnActor<AMinimapLevelController>();
	const FProperty* Property = Controller->GetClass()->FindPropertyByName("MinimapConfiguration");
	Property->ImportText_InContainer(*Config->GetPathName(), Controller, Controller, PPF_None);
	Tool->FindMinimapLevelController();
	TestTrue(TEXT("the range goes one beyond the number of floors"), Tool->GetMinimapFloorRange(MinFloor, MaxFloor) && MinFloor == 1 && MaxFloor == 4);
	TestTrue(TEXT("a floor that is there can be made active"), Tool->SetActiveMinimapFloor(2) && Tool->GetActiveMinimapFloor() == 2);
	TestFalse(TEXT("others cannot"), Tool->SetActiveMinimapFloor(3) || Tool->SetActiveMinimapFloor(-1));
	TestEqual(TEXT("the active one stays"), Tool->GetActiveMinimapFloor(), 2);
	FWidgetTransform Moved;
	Moved.Translation = FVector2D(120.0, -40.0);
	Tool->SetActiveFloorWidgetTransform(Moved);
	TestTrue(TEXT("the active floor's picture moves, no other"), Config->Floors[2].WidgetTransform == Moved && Config->Floors[1].WidgetTransform != Moved);
	State.GetWorld()->DestroyActor(Controller, false, false);
	TestEqual(TEXT("a deleted controller counts no more"), Tool->GetActiveMinimapFloor(), -1);
	return true;
}

#endif
