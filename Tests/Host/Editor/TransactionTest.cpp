// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"
#include "Editor/Transactor.h"
#include "HostEditor.h"
#include "HostObjects.h"
#include "HostPackages.h"
#include "LevelTestEditor.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "TestActors.h"
#include "UObject/Package.h"

using Texts = std::vector<std::string>;

class Transactions : public FLevelTestEditor
{
protected:
	static FText Title(const char* Text) { return FText::FromString(UTF8_TO_TCHAR(Text)); }

	ATestActor* Spawn(const TCHAR* Label, EObjectFlags Flags = RF_Transactional)
	{
		FActorSpawnParameters Parameters;
		Parameters.ObjectFlags = Flags;
		ATestActor* Actor = GetWorld().SpawnActor<ATestActor>(Parameters);
		Actor->SetActorLabel(Label);
		return Actor;
	}

	/** A step of its own. */
	static void SetStorey(ATestActor& Actor, int32 Storey)
	{
		const FScopedTransaction Transaction(Title("Set Storey"));
		Actor.Modify();
		Actor.Storey = Storey;
	}

	/** Titles, the oldest first; undone ones in brackets. */
	static Texts Steps()
	{
		Texts Titles;
		for (int32 Index = 0; Index < GEditor->Trans->GetQueueLength(); ++Index)
		{
			const bool bUndone = Index >= GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount();
			const std::string Step = Utf8(GEditor->Trans->GetTransaction(Index)->GetTitle().ToString());
			Titles.push_back(bUndone ? "[" + Step + "]" : Step);
		}
		return Titles;
	}

	static bool Undo() { return GEditor->UndoTransaction(); }
	static bool Redo() { return GEditor->RedoTransaction(); }

	Texts Selected() const
	{
		Texts Labels;
		for (int32 Index = 0; Index < GEditor->GetSelectedActorCount(); ++Index)
		{
			const AActor* Actor = CastChecked<AActor>(GEditor->GetSelectedActors()->GetSelectedObject(Index));
			EXPECT_TRUE(Actor->IsSelected());
			Labels.push_back(Utf8(Actor->GetActorLabel()));
		}
		return Labels;
	}
};

TEST_F(Transactions, TakeStepsBackAndForthOneByOne)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	SetStorey(*Actor, 1);
	SetStorey(*Actor, 2);
	EXPECT_EQ(Steps(), (Texts{"Set Storey", "Set Storey"}));

	EXPECT_TRUE(Undo());
	EXPECT_EQ(Actor->Storey, 1);
	EXPECT_EQ(Steps(), (Texts{"Set Storey", "[Set Storey]"}));
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Actor->Storey, 0);
	EXPECT_FALSE(Undo()) << "there is nothing more";
	EXPECT_EQ(Actor->Storey, 0);

	EXPECT_TRUE(Redo());
	EXPECT_EQ(Actor->Storey, 1);
	EXPECT_TRUE(Redo());
	EXPECT_EQ(Actor->Storey, 2);
	EXPECT_FALSE(Redo());

	EXPECT_TRUE(GEditor->UndoTransaction(false));
	EXPECT_EQ(Actor->Storey, 1);
	EXPECT_EQ(Steps(), (Texts{"Set Storey"})) << "forgotten, not redone";
}

TEST_F(Transactions, LeaveNoStepWhereNothingRecordedChanged)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	ATestActor* Unrecorded = Spawn(TEXT("B"), RF_NoFlags);
	SetStorey(*Actor, 1);
	Undo();
	{
		const FScopedTransaction Transaction(Title("Empty"));
	}
	{
		const FScopedTransaction Transaction(Title("The same again"));
		EXPECT_TRUE(Actor->Modify());
		Actor->Storey = 5;
		Actor->Storey = 0;
	}
	{
		const FScopedTransaction Transaction(Title("Not transactional"));
		EXPECT_FALSE(Unrecorded->Modify());
		Unrecorded->Storey = 5;
	}
	{
		const FScopedTransaction Transaction(Title("Not wanted"), false);
		EXPECT_FALSE(Actor->Modify());
	}
	EXPECT_FALSE(Actor->Modify()) << "no step is open";
	EXPECT_EQ(Steps(), (Texts{"[Set Storey]"})) << "what can be redone stays";
	Redo();
	EXPECT_EQ(Actor->Storey, 1);
	EXPECT_EQ(Unrecorded->Storey, 5);
}

TEST_F(Transactions, UndoTakesASpawnedActorOutOfTheLevelUntilItIsRedone)
{
	Spawn(TEXT("A"));
	TWeakObjectPtr<ATestActor> Spawned;
	{
		const FScopedTransaction Transaction(Title("Spawn"));
		Spawned = Spawn(TEXT("B"));
		Spawned->Storey = 3;
	}
	EXPECT_EQ(GetLabels(), (Texts{"A", "B"}));
	Undo();
	EXPECT_EQ(GetLabels(), (Texts{"A"}));
	EXPECT_FALSE(Spawned.IsValid());
	HostObjects::CollectGarbage();
	EXPECT_EQ(GetLabels(), (Texts{"A"}));
	Redo();
	EXPECT_EQ(GetLabels(), (Texts{"A", "B"}));
	ASSERT_TRUE(Spawned.IsValid());
	EXPECT_EQ(Spawned->Storey, 3);
	EXPECT_FALSE(Spawned->IsActorBeingDestroyed());
	EXPECT_TRUE(Spawned->Destroy());
}

TEST_F(Transactions, UndoBringsADestroyedActorBackToItsPlace)
{
	Spawn(TEXT("A"));
	ATestActor* Destroyed = Spawn(TEXT("B"));
	Destroyed->Neighbour = Spawn(TEXT("C"));
	GEditor->SelectActor(Destroyed, true, true);
	{
		const FScopedTransaction Transaction(Title("Destroy"));
		EXPECT_TRUE(Destroyed->Destroy());
	}
	EXPECT_EQ(Selected(), Texts());
	HostObjects::CollectGarbage();
	Undo();
	EXPECT_EQ(GetLabels(), (Texts{"A", "B", "C"}));
	EXPECT_EQ(Utf8(Destroyed->Neighbour->GetActorLabel(false)), "C");
	EXPECT_FALSE(Destroyed->IsSelected()) << "the selection is no part of the step";
	Redo();
	EXPECT_EQ(GetLabels(), (Texts{"A", "C"}));
	EXPECT_FALSE(Destroyed->Destroy()) << "it is gone already";
}

TEST_F(Transactions, UndoLeavesActorsAloneThatCameAndWentWithoutAStep)
{
	ATestActor* First = Spawn(TEXT("A"));
	{
		const FScopedTransaction Transaction(Title("Spawn"));
		Spawn(TEXT("B"));
	}
	First->Destroy();
	Spawn(TEXT("C"));
	Undo();
	EXPECT_EQ(GetLabels(), (Texts{"C"}));
	Spawn(TEXT("D"));
	Redo();
	EXPECT_EQ(GetLabels(), (Texts{"B", "C", "D"}));
}

TEST_F(Transactions, RestoreTheSelectionAndTellOnce)
{
	ATestActor* First = Spawn(TEXT("A"));
	ATestActor* Second = Spawn(TEXT("B"));
	GEditor->SelectActor(First, true, true);
	{
		const FScopedTransaction Transaction(Title("Select"));
		GEditor->SelectNone(false, true);
		GEditor->SelectActor(Second, true, true);
		GEditor->SelectActor(Spawn(TEXT("C")), true, true);
	}
	Texts Told;
	USelection::SelectionChangedEvent.AddLambda([this, &Told](UObject*) {
		Told.push_back("");
		for (const std::string& Label : Selected())
		{
			Told.back() += Label;
		}
	});
	Undo();
	EXPECT_EQ(Selected(), (Texts{"A"}));
	EXPECT_FALSE(Second->IsSelected());
	Redo();
	EXPECT_EQ(Selected(), (Texts{"B", "C"}));
	EXPECT_FALSE(First->IsSelected());
	EXPECT_EQ(Told, (Texts{"A", "BC"}));
	{
		const FScopedTransaction Transaction(Title("The same again"));
		GEditor->SelectNone(false, true);
		GEditor->SelectActor(Second, true, true);
		GEditor->SelectActor(GEditor->GetSelectedActors()->GetTop<AActor>(), true, true);
		GEditor->SelectActor(CastChecked<AActor>(GetWorld().PersistentLevel->Actors.Last()), true, true);
	}
	EXPECT_EQ(Steps(), (Texts{"Select"}));
}

TEST_F(Transactions, UndoAndRedoAreUnsavedChanges)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	ASSERT_TRUE(HostEditor::SaveOpenMapAs(TEXT("/Game/Maps/Tower")));
	SetStorey(*Actor, 4);
	EXPECT_EQ(HostPackages::GetDirtyPackages().Num(), 1);
	ASSERT_TRUE(HostEditor::SaveOpenMap());

	const auto OpenAndRead = [this]() {
		Restart();
		HostEditor::OpenMap(TEXT("/Game/Maps/Tower"));
		return CastChecked<ATestActor>(GetWorld().PersistentLevel->Actors[0])->Storey;
	};
	EXPECT_EQ(OpenAndRead(), 4);
	Actor = CastChecked<ATestActor>(GetWorld().PersistentLevel->Actors[0]);
	SetStorey(*Actor, 5);
	ASSERT_TRUE(HostEditor::SaveOpenMap());
	EXPECT_TRUE(Undo()) << "saving forgets no step";
	EXPECT_EQ(Actor->Storey, 4);
	EXPECT_EQ(HostPackages::GetDirtyPackages().Num(), 1) << "5 is on disk";
	ASSERT_TRUE(HostEditor::SaveOpenMap());
	Redo();
	EXPECT_EQ(HostPackages::GetDirtyPackages().Num(), 1) << "4 is on disk";
	EXPECT_EQ(OpenAndRead(), 4);
	EXPECT_EQ(Steps(), Texts());
}

TEST_F(Transactions, AnActorWhoseSpawningIsUndoneIsNotSaved)
{
	ASSERT_TRUE(HostEditor::SaveOpenMapAs(TEXT("/Game/Maps/Tower")));
	{
		const FScopedTransaction Transaction(Title("Spawn"));
		Spawn(TEXT("A"));
	}
	ASSERT_TRUE(HostEditor::SaveOpenMap());
	Undo();
	ASSERT_TRUE(HostPackages::SaveAll().Succeeded());
	Restart();
	ASSERT_EQ(HostEditor::OpenMap(TEXT("/Game/Maps/Tower")), HostEditor::EOpenMap::Opened);
	EXPECT_EQ(GetLabels(), Texts());
}

TEST_F(Transactions, KeepAliveWhatTheyNeedUntilAnotherMapOpens)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	TWeakObjectPtr<ATestActor> Neighbour = Spawn(TEXT("B"));
	Actor->Neighbour = Neighbour.Get();
	{
		const FScopedTransaction Transaction(Title("Part from the neighbour"));
		Actor->Modify();
		Actor->Neighbour = nullptr;
	}
	GetWorld().PersistentLevel->Actors.Remove(Neighbour.Get()); // as if nobody knew of it any more
	HostObjects::CollectGarbage();
	ASSERT_TRUE(Neighbour.IsValid());
	Undo();
	EXPECT_EQ(Actor->Neighbour, Neighbour.Get());

	HostEditor::OpenMap(FString());
	EXPECT_EQ(Steps(), Texts());
	EXPECT_FALSE(Redo());
	HostObjects::CollectGarbage();
	EXPECT_EQ(Neighbour.Get(true), nullptr);
}

TEST_F(Transactions, AMapThatOpensWithinAStepEndsIt)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	{
		const FScopedTransaction Transaction(Title("Set Storey"));
		Actor->Modify();
		HostEditor::OpenMap(FString());
	}
	EXPECT_EQ(Steps(), Texts());
	SetStorey(*Spawn(TEXT("B")), 1);
	EXPECT_EQ(Steps(), (Texts{"Set Storey"}));
}

TEST_F(Transactions, TellObjectsAfterAllHaveChangedAndRecordNothingOfWhatTheyDoThen)
{
	ATestActor* First = Spawn(TEXT("A"));
	ATestActor* Second = Spawn(TEXT("B"));
	{
		const FScopedTransaction Transaction(Title("Both"));
		First->Modify();
		First->Storey = 1;
		Second->Modify();
		Second->Storey = 2;
	}
	TArray<int32> Sums; // at each announcement
	FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&](UObject*, FPropertyChangedEvent&) {
		EXPECT_TRUE(GIsTransacting) << "while objects are told";
		EXPECT_FALSE(Undo());
		Sums.Add(First->Storey + Second->Storey);
		SetStorey(*Second, 7);
	});
	int32 NumUndoRedo = 0;
	FEditorDelegates::PostUndoRedo.AddLambda([&NumUndoRedo]() {
		EXPECT_FALSE(GIsTransacting) << "after the step";
		++NumUndoRedo;
	});
	Undo();
	EXPECT_EQ(Sums, (TArray<int32>{0, 7}));
	EXPECT_EQ(Steps(), (Texts{"[Both]"}));
	Redo();
	EXPECT_EQ(First->Storey, 1);
	EXPECT_EQ(NumUndoRedo, 2);
	Undo();
	Undo();
	EXPECT_EQ(NumUndoRedo, 3) << "the last one had nothing to undo";
}

TEST_F(Transactions, WhoIsToldOfAnUndoMayForgetAllSteps)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	SetStorey(*Actor, 1);
	FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([](UObject*, FPropertyChangedEvent&) { GEditor->ResetTransaction(FText()); });
	EXPECT_TRUE(Undo());
	EXPECT_EQ(Actor->Storey, 0);
	EXPECT_FALSE(Redo());
}

TEST_F(Transactions, MoveAnObjectBackUnderAnotherNameWhenItsOwnIsTaken)
{
	ATestActor* Actor = Spawn(TEXT("A"));
	const FName OldName = Actor->GetFName();
	{
		const FScopedTransaction Transaction(Title("Rename"));
		Actor->Rename(TEXT("Renamed"), nullptr);
	}
	Undo();
	EXPECT_EQ(Actor->GetFName(), OldName);
	Redo();
	EXPECT_EQ(Actor->GetFName(), FName(TEXT("Renamed")));

	FActorSpawnParameters Parameters;
	Parameters.Name = OldName;
	const AActor* Successor = GetWorld().SpawnActor<ATestActor>(Parameters);
	ASSERT_NE(Successor, nullptr);
	Undo();
	EXPECT_EQ(Successor->GetFName(), OldName);
	EXPECT_NE(Actor->GetFName(), OldName);
	EXPECT_NE(Actor->GetFName(), FName(TEXT("Renamed")));
}
