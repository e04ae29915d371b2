// Copyright Velmorant. All Rights Reserved.

#include "CoreMinimal.h"
#include "Editor.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "Kismet/GameplayStatics.h"
#include "Misc/ScopeExit.h"
#include "Selection.h"
#include "Support/Beliefs.h"
#include "Support/EditorState.h"
#include "Support/TestFlags.h"
#include "UObject/Package.h"
#include "UnitVolumeActor.h"

#if WITH_DEV_AUTOMATION_TESTS

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantSelectionEventsTest, "Velmorant.Engine.Selection.Events", VelmorantTests::Flags)

bool FVelmorantSelectionEventsTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	AUnitVolumeActor* Actor = State.GetWorld()->SpawnActor<AUnitVolumeActor>();
	int32 NumEvents = 0;
	const FDelegateHandle Handle = USelection::SelectionChangedEvent.AddLambda([&NumEvents](UObject*) { ++NumEvents; });
	ON_SCOPE_EXIT
	{
		USelection::SelectionChangedEvent.Remove(Handle);
	};
	const auto TakeEvents = [&NumEvents] {
		const int32 Taken = NumEvents;
		NumEvents = 0;
		return Taken;
	};
	GEditor->SelectNone(false, true);
	GEditor->SelectActor(Actor, true, false, true);
	TestEqual(TEXT("nobody is told who asked for silence"), TakeEvents(), 0);
	TestEqual(TEXT("one actor is selected"), GEditor->GetSelectedActors()->Num(), 1);
	TestSamePtr(TEXT("that one"), GEditor->GetSelectedActors()->GetTop<AUnitVolumeActor>(), Actor);
	GEditor->NoteSelectionChange();
	VelmorantTests::RecordBelief(*this, TEXT("selection events of one NoteSelectionChange"), NumEvents);
	TestTrue(TEXT("noting the change tells"), TakeEvents() > 0);
	GEditor->SelectActor(Actor, false, true, true);
	TestTrue(TEXT("selecting with notice tells by itself"), TakeEvents() > 0);
	TestEqual(TEXT("nothing is selected"), GEditor->GetSelectedActors()->Num(), 0);
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVelmorantActorIterationTest, "Velmorant.Engine.Actors.Iteration", VelmorantTests::Flags)

bool FVelmorantActorIterationTest::RunTest(const FString&)
{
	const FVelmorantEditorState State;
	TArray<AActor*> Before;
	UGameplayStatics::GetAllActorsOfClass(State.GetWorld(), AUnitVolumeActor::StaticClass(), Before);
	TArray<AUnitVolumeActor*> Spawned;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Spawned.Add(State.GetWorld()->SpawnActor<AUnitVolumeActor>());
	}
	State.GetWorld()->DestroyActor(Spawned[1], false, false);
	TArray<AActor*> After;
	UGameplayStatics::GetAllActorsOfClass(State.GetWorld(), AUnitVolumeActor::StaticClass(), After);
	if (TestEqual(TEXT("what was destroyed is not met"), After.Num(), Before.Num() + 2))
	{
		TestTrue(TEXT("the others in the order in which they came"), After.Last(1) == Spawned[0] && After.Last() == Spawned[2]);
	}
	TestTrue(TEXT("each has a name of its own"), Spawned[0]->GetFName() != Spawned[2]->GetFName());
	TestTrue(TEXT("the level has changed"), Spawned[0]->GetPackage()->IsDirty());
	const FVector Location(0.0, 0.0, 500.0);
	const AActor* Placed = State.GetWorld()->SpawnActor(AUnitVolumeActor::StaticClass(), &Location, &FRotator::ZeroRotator, FActorSpawnParameters());
	TestTrue(TEXT("an actor stands where it was put"), Placed && Placed->GetActorLocation().Equals(Location));
	return true;
}

#endif
