// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/World.h"
#include "Misc/ScopeExit.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "Support/Beliefs.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "Support/TestListener.h"
#include "UObject/Package.h"
#include "UnitVolumeActor.h"

#if WITH_DEV_AUTOMATION_TESTS

namespace UndoTest
{
	UVelmorantTestListener* MakeObject(EObjectFlags Flags = RF_Transactional)
	{
		return NewObject<UVelmorantTestListener>(GetTransientPackage(), NAME_None, Flags);
	}

	void Change(UVelmorantTestListener& Object, int32 Amount, const FText& Title)
	{
		const FScopedTransaction Transaction(Title);
		Object.Modify();
		Object.Amount = Amount;
		Object.NotReflected = Amount;
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoTest, "Velmorant.Engine.Undo.Steps", VelmorantTests::Flags)

bool FVelmorantUndoTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UndoTest::MakeObject();
	UndoTest::Change(*Object, 1, INVTEXT("Velmorant one"));
	UndoTest::Change(*Object, 2, INVTEXT("Velmorant two"));
	if (!TestEqual(TEXT("each scope is a step"), State.CountNewSteps(), 2))
	{
		return false;
	}
	int32 NumUndone = 0;
	const FDelegateHandle Handle = FEditorDelegates::PostUndoRedo.AddLambda([&NumUndone] { ++NumUndone; });
	ON_SCOPE_EXIT
	{
		FEditorDelegates::PostUndoRedo.Remove(Handle);
	};
	TestTrue(TEXT("a step can be undone"), GEditor->UndoTransaction());
	TestTrue(TEXT("the object is told, and so is everybody"), Object->NumUndone == 1 && NumUndone == 1);
	TestEqual(TEXT("what was written in it is as before"), Object->Amount, 1);
	TestEqual(TEXT("what is not reflected stays"), Object->NotReflected, 2);
	GEditor->RedoTransaction();
	TestEqual(TEXT("and redone"), Object->Amount, 2);
	TestTrue(TEXT("which is told as well"), Object->NumUndone == 2 && NumUndone == 2);
	GEditor->UndoTransaction();
	UndoTest::Change(*Object, 3, INVTEXT("Velmorant three"));
	TestFalse(TEXT("after a new step there is nothing to redo"), GEditor->RedoTransaction());
	TestEqual(TEXT("two steps are left"), State.CountNewSteps(), 2);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoNestedTest, "Velmorant.Engine.Undo.NestedScopes", VelmorantTests::Flags)

bool FVelmorantUndoNestedTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UndoTest::MakeObject();
	{
		const FScopedTransaction Outer(INVTEXT("Velmorant outer"));
		UndoTest::Change(*Object, 1, INVTEXT("Velmorant inner"));
		UndoTest::Change(*Object, 2, INVTEXT("Velmorant inner"));
		TestEqual(TEXT("no step before the outermost scope ends"), State.CountNewSteps(), 0);
	}
	TestEqual(TEXT("scopes within one another are one step"), State.CountNewSteps(), 1);
	const FTransaction* Step = GEditor->Trans->GetTransaction(GEditor->Trans->GetQueueLength() - 1);
	TestEqualSensitive(TEXT("of the outermost's title"), *Step->GetTitle().ToString(), TEXT("Velmorant outer"));
	GEditor->UndoTransaction();
	TestEqual(TEXT("taken back as one"), Object->Amount, 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoNothingTest, "Velmorant.Engine.Undo.NothingRecorded", VelmorantTests::Flags)

bool FVelmorantUndoNothingTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UndoTest::MakeObject();
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant nothing"));
	}
	TestEqual(TEXT("a scope in which nothing was announced leaves no step"), State.CountNewSteps(), 0);
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant unannounced"));
		Object->Amount = 5;
	}
	TestEqual(TEXT("nor does a raw write"), State.CountNewSteps(), 0);
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant announced"));
		Object->Modify();
	}
	VelmorantTests::RecordBelief(*this, TEXT("steps of a scope that announces a change and makes none"), State.CountNewSteps());
	UVelmorantTestListener* Unrecorded = UndoTest::MakeObject(RF_NoFlags);
	const FScopedTransaction Transaction(INVTEXT("Velmorant unrecorded"));
	TestFalse(TEXT("an object that is not transactional is not recorded"), Unrecorded->Modify());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoOpenTest, "Velmorant.Engine.Undo.WhileAStepIsOpen", VelmorantTests::Flags)

bool FVelmorantUndoOpenTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	UVelmorantTestListener* Object = UndoTest::MakeObject();
	UndoTest::Change(*Object, 1, INVTEXT("Velmorant one"));
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant open"));
		TestTrue(TEXT("a step is open"), GEditor->IsTransactionActive());
		Object->Modify();
		Object->Amount = 2;
		VelmorantTests::RecordBelief(*this, TEXT("undo while a step is open"), GEditor->UndoTransaction() ? TEXT("done") : TEXT("refused"));
	}
	TestFalse(TEXT("no step is open"), GEditor->IsTransactionActive());
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoSpawnTest, "Velmorant.Engine.Undo.SpawnedActors", VelmorantTests::Flags)

bool FVelmorantUndoSpawnTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	TWeakObjectPtr<AUnitVolumeActor> Actor;
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant spawn"));
		Actor = State.GetWorld()->SpawnActor<AUnitVolumeActor>();
	}
	if (!TestValid(TEXT("an actor is there"), Actor))
	{
		return false;
	}
	TestTrue(TEXT("it can be undone"), Actor->HasAnyFlags(RF_Transactional));
	TestEqual(TEXT("spawning is a step"), State.CountNewSteps(), 1);
	GEditor->UndoTransaction();
	TestFalse(TEXT("undone, the actor is no longer valid"), IsValid(Actor.Get(true)));
	GEditor->RedoTransaction();
	TestTrue(TEXT("redone, it is again"), IsValid(Actor.Get(true)));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantUndoSelectionTest, "Velmorant.Engine.Undo.Selection", VelmorantTests::Flags)

bool FVelmorantUndoSelectionTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	AUnitVolumeActor* First = State.GetWorld()->SpawnActor<AUnitVolumeActor>();
	AUnitVolumeActor* Second = State.GetWorld()->SpawnActor<AUnitVolumeActor>();
	GEditor->SelectNone(false, true);
	GEditor->SelectActor(First, true, false, true);
	{
		const FScopedTransaction Transaction(INVTEXT("Velmorant select"));
		GEditor->GetSelectedActors()->Modify();
		GEditor->SelectNone(false, true);
		GEditor->SelectActor(Second, true, false, true);
	}
	TestTrue(TEXT("the second is selected"), GEditor->GetSelectedActors()->IsSelected(Second));
	GEditor->UndoTransaction();
	TestTrue(TEXT("undo selects the first again"), GEditor->GetSelectedActors()->IsSelected(First) && !GEditor->GetSelectedActors()->IsSelected(Second));
	return true;
}

#endif
