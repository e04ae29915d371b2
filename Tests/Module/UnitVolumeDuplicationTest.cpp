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

	/** What the layout counts and marks: the clashes of now, not those found earlier. */
	void ExpectClashesAsTheyAre(const TArray<AUnitVolumeActor*>& Volumes) const
	{
		TSet<FString> Clashing;
		for (const AUnitVolumeActor* One : Volumes)
		{
			for (const AUnitVolumeActor* Other : Volumes)
			{
				const FUnitVolumeUniqueIdentifier& Identifier = One->UniqueIdentifier;
				if (One != Other && Identifier.HasValidKeycode() && Identifier.UnitID == Other->UniqueIdentifier.UnitID && Identifier.Keycode == Other->UniqueIdentifier.Keycode)
				{
					Clashing.Add(Identifier.Keycode);
				}
			}
		}
		EXPECT_EQ(UUnitVolumeClashLibrary::CountClashingKeycodes(List.Get()), Clashing.Num());
		for (const UVlmEWUnitVolumeDuplication_Item* Item : Items)
		{
			EXPECT_EQ(UUnitVolumeClashLibrary::DoVolumesClash(TArray<AActor*>(Item->DuplicateActors)), Clashing.Contains(Item->Identifier.ToString())) << ToUtf8(Item->Identifier);
		}
	}

	TStrongObjectPtr<UVlmEWUnitVolumeDuplicationList> List;
	TArray<UVlmEWUnitVolumeDuplication_Item*> Items;
	int32 NumAnswers = 0;
};

TEST_F(UnitVolumeDuplication, TellsAnEmptyListWhenNothingClashes)
{
	EXPECT_THAT(Check(), IsEmpty()) << "no volumes";
	Spawn(TEXT("a"), 1, TEXT(""));
	Spawn(TEXT("b"), 1, TEXT(""));
	EXPECT_THAT(Check(), IsEmpty()) << "without key code";
	Spawn(TEXT("c"), 1, TEXT("A1"));
	Spawn(TEXT("d"), 1, TEXT("A2"));
	Spawn(TEXT("e"), 2, TEXT("A1"));
	EXPECT_THAT(Check(), IsEmpty()) << "key code or integer differs";
}

TEST_F(UnitVolumeDuplication, GroupsAllVolumesThatAreAlike)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	Spawn(TEXT("b"), 1, TEXT("B1"));
	Spawn(TEXT("c"), 1, TEXT("A1"));
	Spawn(TEXT("d"), 1, TEXT("B1"));
	Spawn(TEXT("e"), 1, TEXT("A1"));
	GetWorld().SpawnActor<AActor>();
	EXPECT_THAT(Check(), ElementsAre("A1: a c e", "B1: b d"));
}

TEST_F(UnitVolumeDuplication, LetterCaseOfTheKeyCodeDoesNotCount)
{
	Spawn(TEXT("a"), 1, TEXT("a1"));
	Spawn(TEXT("b"), 1, TEXT("A1"));
	Spawn(TEXT("c"), 1, TEXT("\u00D1-Torre"));
	Spawn(TEXT("d"), 1, TEXT("\u00F1-TORRE"));
	EXPECT_THAT(Check(), ElementsAre("a1: a b", "\u00D1-Torre: c d"));
}

TEST_F(UnitVolumeDuplication, ClashesOfOneKeyCodeShareAGroup)
{
	Spawn(TEXT("a"), 1, TEXT("A1"));
	Spawn(TEXT("b"), 2, TEXT("A1"));
	Spawn(TEXT("c"), 2, TEXT("a1"));
	Spawn(TEXT("d"), 1, TEXT("A1"));
	Spawn(TEXT("e"), 3, TEXT("A1"));
	EXPECT_THAT(Check(), ElementsAre("A1: a d b c")) << "one after the other; the third integer clashes with nobody";
}

TEST_F(UnitVolumeDuplication, AKeyCodeMayBeLongerThanAName)
{
	const FString Longest = FString::ChrN(NAME_SIZE - 1, TEXT('x'));
	Spawn(TEXT("a"), 1, Longest);
	Spawn(TEXT("b"), 1, Longest + TEXT("1"));
	Spawn(TEXT("c"), 1, Longest + TEXT("2"));
	EXPECT_THAT(Check(), IsEmpty());
	Spawn(TEXT("d"), 1, Longest + TEXT("2"));
	EXPECT_THAT(Check(), ElementsAre(ToUtf8(Longest) + ": c d"));
}

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

TEST_F(UnitVolumeDuplication, FindsWhatComparingAllPairsFinds)
{
	const TCHAR* const Keycodes[] = {TEXT(""), TEXT("A1"), TEXT("a1"), TEXT("B"), TEXT("b"), TEXT("C-3"), TEXT("c-3"), TEXT("C_3"), TEXT("\u00C1"), TEXT("\u00E1"), TEXT("D")};
	const int32 NumKeycodes = static_cast<int32>(std::size(Keycodes));
	std::mt19937 Random(20250611);
	const auto Pick = [&Random](int32 Count) { return static_cast<int32>(Random() % static_cast<uint32>(Count)); };
	for (int32 Level = 0; Level < 40; ++Level)
	{
		SCOPED_TRACE(Level);
		StartEditor();
		MakeList(&GetWorld());
		FPairwiseClashes Pairwise;
		TArray<AUnitVolumeActor*> Volumes;
		for (int32 Run = 0; Run < 3; ++Run)
		{
			for (int32 Index = Pick(25); Index >= 0; --Index)
			{
				Volumes.Add(Spawn(*FString::FromInt(Volumes.Num()), Pick(3), Keycodes[Pick(NumKeycodes)]));
			}
			Volumes[Pick(Volumes.Num())]->UniqueIdentifier.Keycode = Keycodes[Pick(NumKeycodes)];

			std::vector<std::string> Expected;
			Pairwise.Check(Volumes);
			for (const TPair<FName, TArray<AUnitVolumeActor*>>& Group : Pairwise.GetGroups())
			{
				Expected.push_back(ToUtf8(Group.Key) + ":");
				for (const AUnitVolumeActor* Volume : Group.Value)
				{
					Expected.back() += " " + ToUtf8(Volume->GetActorLabel());
				}
			}
			EXPECT_EQ(Check(), Expected);
			ExpectClashesAsTheyAre(Volumes);
		}
	}
}
