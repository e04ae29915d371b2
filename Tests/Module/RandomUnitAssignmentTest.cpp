// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "HostEditor.h"
#include "ToolkitTest.h"
#include "UnitVolumeActor.h"
#include "VelmorantEditorUtilitiesLibrary.h"
#include "VelmorantProjectRequestManager.h"

using testing::ElementsAre;
using testing::IsEmpty;

class RandomUnitAssignment : public FToolkitTest
{
protected:
	/** Starts with three units in the target unit group, and so many volumes, without unit, in a saved level. */
	void StartWithVolumes(int32 NumVolumes)
	{
		WriteHarborTower(R"("unitGroups": [
			{"keyCode": "A", "name": "Tower A", "units": [{"keyCode": "A-1", "name": "1", "unitID": 7}, {"keyCode": "A-2", "name": "2", "unitID": 3}, {"keyCode": "a-3", "name": "3", "unitID": 5}]},
			{"keyCode": "B", "name": "Tower B", "units": []}])");
		StartWithProject();
		SetTarget(TEXT("A"));
		SpawnVolumes(NumVolumes);
		TakeOutcomes();
	}

	static UWorld& GetWorld() { return *GEditor->GetEditorWorldContext().World(); }

	void SpawnVolumes(int32 NumVolumes)
	{
		for (int32 Index = 0; Index < NumVolumes; ++Index)
		{
			Volumes.Add(GetWorld().SpawnActor<AUnitVolumeActor>());
		}
		ASSERT_TRUE(HostEditor::CanSaveOpenMap() ? HostEditor::SaveOpenMap() : HostEditor::SaveOpenMapAs(Map));
	}

	static void SetTarget(const TCHAR* KeyCode) { GetRequests()->SetSelectedUnitGroup(FName(KeyCode)); }

	static bool Assign() { return UVelmorantEditorUtilitiesLibrary::AssignRandomUnitsFromDataIntoLevel(); }

	std::vector<std::string> Describe() const
	{
		std::vector<std::string> Units;
		for (const AUnitVolumeActor* Volume : Volumes)
		{
			Units.push_back(ToUtf8(FString::Printf(TEXT("%d %s"), Volume->UniqueIdentifier.UnitID, *Volume->UniqueIdentifier.Keycode)));
		}
		return Units;
	}

	static constexpr const TCHAR* Map = TEXT("/Game/Maps/Units");

	TArray<AUnitVolumeActor*> Volumes;
};

TEST_F(RandomUnitAssignment, GoesFromTheEndOfTheListInTheOrderOfTheVolumes)
{
	StartWithVolumes(3);
	EXPECT_TRUE(Assign());
	EXPECT_THAT(Describe(), ElementsAre("5 a-3", "3 A-2", "7 A-1"));
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}

TEST_F(RandomUnitAssignment, IsAnUnsavedChangeOfTheLevel)
{
	StartWithVolumes(2);
	EXPECT_THAT(Unsaved(), IsEmpty());
	Assign();
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Maps/Units"));
	SaveAndRestart(Map);
	Volumes.Empty();
	for (TActorIterator<AUnitVolumeActor> Volume(&GetWorld()); Volume; ++Volume)
	{
		Volumes.Add(*Volume);
	}
	EXPECT_THAT(Describe(), ElementsAre("5 a-3", "3 A-2"));
}

TEST_F(RandomUnitAssignment, GivesTheSameUnitsAgain)
{
	StartWithVolumes(2);
	EXPECT_TRUE(Assign());
	SaveAll();
	EXPECT_TRUE(Assign());
	EXPECT_THAT(Unsaved(), ElementsAre("/Game/Maps/Units")) << "whether they are others or not";
	EXPECT_THAT(Describe(), ElementsAre("5 a-3", "3 A-2")) << "the first unit of the list stays unassigned";
}

TEST_F(RandomUnitAssignment, LeavesTheVolumesThatAreTooMany)
{
	StartWithVolumes(5);
	Volumes[4]->UniqueIdentifier = FUnitVolumeUniqueIdentifier(99, TEXT("Kept"));
	EXPECT_TRUE(Assign());
	EXPECT_THAT(Describe(), ElementsAre("5 a-3", "3 A-2", "7 A-1", "-1 ", "99 Kept"));
}

TEST_F(RandomUnitAssignment, SkipsOtherActorsAndDestroyedVolumes)
{
	StartWithVolumes(3);
	GetWorld().SpawnActor<AActor>();
	Volumes[0]->Destroy();
	Volumes.RemoveAt(0);
	EXPECT_TRUE(Assign());
	EXPECT_THAT(Describe(), ElementsAre("5 a-3", "3 A-2"));
}

TEST_F(RandomUnitAssignment, TellsEachVolumeOfItsChange)
{
	StartWithVolumes(4);
	std::vector<const UObject*> Changed;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&Changed](UObject* Object, FPropertyChangedEvent&) { Changed.push_back(Object); });
	Assign();
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
	EXPECT_THAT(Changed, ElementsAre(Volumes[0], Volumes[1], Volumes[2]));
}

TEST_F(RandomUnitAssignment, IsSilentlyFalseWithoutAnythingToAssign)
{
	StartWithVolumes(0);
	EXPECT_FALSE(Assign()) << "no volumes";
	SpawnVolumes(1);
	SetTarget(TEXT("B"));
	EXPECT_FALSE(Assign()) << "no units";
	EXPECT_THAT(Describe(), ElementsAre("-1 "));
	EXPECT_THAT(Unsaved(), IsEmpty());
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}

TEST_F(RandomUnitAssignment, IsSilentlyFalseAtEveryMissingLinkToTheTarget)
{
	StartEditor();
	SpawnVolumes(1);
	TakeOutcomes();
	EXPECT_FALSE(Assign()) << "no user";
	SignIn();
	EXPECT_FALSE(Assign()) << "no project";
	SelectProject(TEXT("HT"));
	EXPECT_FALSE(Assign()) << "no target";
	EXPECT_THAT(Unsaved(), IsEmpty());
	EXPECT_THAT(TakeOutcomes(), IsEmpty());
}
