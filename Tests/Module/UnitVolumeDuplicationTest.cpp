// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "EditorWidgets/VlmEWUnitVolumeDuplicationList.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "HostObjects.h"
#include "HostUserWidgets.h"
#include "PairwiseClashes.h"
#include "ToolkitTest.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UnitVolumeClashLibrary.h"

#include <random>

using testing::ElementsAre;
using testing::IsEmpty;

class UnitVolumeDuplication : public FToolkitTest
{
protected:
	UnitVolumeDuplication()
	{
		StartEditor();
		MakeList(&GetWorld());
	}

	/** The list as its layout would be opened, in the world or outside one. */
	void MakeList(UObject* Outer)
	{
		UClass* Class = HostObjects::DeriveClass(UVlmEWUnitVolumeDuplicationList::StaticClass(), MakeUniqueObjectName(GetTransientPackage(), UClass::StaticClass(), TEXT("TestList_C")), GetTransientPackage());
		HostObjects::AddScriptFunction(Class, TEXT("OnDuplicationsList"), [this](UObject*, FFrame& Stack, void*) {
			Items = *reinterpret_cast<const TArray<UVlmEWUnitVolumeDuplication_Item*>*>(Stack.Locals);
			++NumAnswers;
		});
		List = TStrongObjectPtr<UVlmEWUnitVolumeDuplicationList>(Cast<UVlmEWUnitVolumeDuplicationList>(FHostUserWidgets::Create(Outer, Class)));
	}

	static UWorld& GetWorld() { return *GEditor->GetEditorWorldContext().World(); }

	/** @param Label tells the volume in what Check() returns. */
	static AUnitVolumeActor* Spawn(const TCHAR* Label, int32 UnitID, const FString& Keycode)
	{
		AUnitVolumeActor* Volume = GetWorld().SpawnActor<AUnitVolumeActor>();
		Volume->SetActorLabel(Label);
		Volume->UniqueIdentifier = FUnitVolumeUniqueIdentifier(UnitID, Keycode);
		return Volume;
	}

	/** The groups that the list tells, each as "Key: label label". */
	std::vector<std::string> Check()
	{
		const int32 NumBefore = NumAnswers;
		List->CheckForDuplications();
		EXPECT_EQ(NumAnswers, NumBefore + 1);
		std::vector<std::string> Groups;
		for (const UVlmEWUnitVolumeDuplication_Item* Item : Items)
		{
			std::string Group = ToUtf8(Item->Identifier) + ":";
			for (const AActor* Actor : Item->DuplicateActors)
			{
				Group += " " + ToUtf8(Actor->GetActorLabel());
			}
			Groups.push_back(Group);
		}
		return Groups;
	}

	TStrongObjectPtr<UVlmEWUnitVolumeDuplicationList> List;
	TArray<UVlmEWUnitVolumeDuplication_Item*> Items;
	int32 NumAnswers = 0;
};

TEST_F(UnitVolumeDuplication, TellsTheSameAgainInNewItems)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	Spawn(TEXT("b"), 1, TEXT("A1"));
	EXPECT_THAT(Check(), ElementsAre("A1: a b"));
	const UVlmEWUnitVolumeDuplication_Item* First = Items[0];
	EXPECT_THAT(Check(), ElementsAre("A1: a b"));
	EXPECT_NE(Items[0], First);
	EXPECT_EQ(Items[0]->GetOutermost(), GetTransientPackage());
}

TEST_F(UnitVolumeDuplication, RemembersARepairedClashUntilTheListIsClosed)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	AUnitVolumeActor* Repaired = Spawn(TEXT("b"), 1, TEXT("A1"));
	Check();
	Repaired->UniqueIdentifier.UnitID = 2;
	EXPECT_THAT(Check(), ElementsAre("A1: a b"));
	Spawn(TEXT("c"), 2, TEXT("A1"));
	EXPECT_THAT(Check(), ElementsAre("A1: a b c")) << "later clashes join the group";
	MakeList(&GetWorld());
	EXPECT_THAT(Check(), ElementsAre("A1: b c"));
}

TEST_F(UnitVolumeDuplication, LeavesOutVolumesThatAreGone)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	AUnitVolumeActor* Gone = Spawn(TEXT("b"), 1, TEXT("A1"));
	AUnitVolumeActor* GoneUnseen = Spawn(TEXT("c"), 1, TEXT("A1"));
	GoneUnseen->Destroy();
	EXPECT_THAT(Check(), ElementsAre("A1: a b"));
	Gone->Destroy();
	EXPECT_THAT(Check(), ElementsAre("A1: a"));
	HostObjects::CollectGarbage();
	EXPECT_THAT(Check(), ElementsAre("A1: a")) << "its memory is free";
}

TEST_F(UnitVolumeDuplication, FindsNothingOutsideAWorld)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	Spawn(TEXT("b"), 1, TEXT("A1"));
	MakeList(nullptr);
	EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(UnitVolumeDuplication, ItsLayoutKnowsWhichClashesAreStillThere)
{
	std::mt19937 Random(20250611);
	const TCHAR* const Keycodes[] = {TEXT(""), TEXT("A1"), TEXT("a1"), TEXT("B"), TEXT("b"), TEXT("\u00C1"), TEXT("\u00E1"), TEXT("D")};
	const auto MakeIdentifier = [&] { return FUnitVolumeUniqueIdentifier(static_cast<int32>(Random() % 3), Keycodes[Random() % std::size(Keycodes)]); };
	TArray<AUnitVolumeActor*> Volumes;
	FPairwiseClashes::FIdentifiers Identifiers;
	for (int32 Run = 0; Run < 60; ++Run)
	{
		SCOPED_TRACE(Run);
		if (Run < 20)
		{
			Volumes.Add(Spawn(TEXT("Volume"), 0, FString()));
			Identifiers.Add(&Volumes.Last()->UniqueIdentifier);
		}
		Volumes[static_cast<int32>(Random() % static_cast<uint32>(Volumes.Num()))]->UniqueIdentifier = MakeIdentifier();
		Check(); // tells those found earlier as well

		const FPairwiseClashes Clashes(Identifiers);
		EXPECT_EQ(UUnitVolumeClashLibrary::CountClashingKeycodes(List.Get()), Clashes.GetGroups().Num());
		for (const UVlmEWUnitVolumeDuplication_Item* Item : Items)
		{
			EXPECT_EQ(UUnitVolumeClashLibrary::DoVolumesClash(TArray<AActor*>(Item->DuplicateActors)), Clashes.GetGroups().Contains(Item->Identifier)) << ToUtf8(Item->Identifier);
		}
	}
}
