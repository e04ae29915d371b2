// Copyright Velmorant. All Rights Reserved.

#include "HostActors.h"

#include "Editor.h"
#include "GameFramework/Actor.h"
#include "ScopedTransaction.h"
#include "Selection.h"

#define LOCTEXT_NAMESPACE "HostActors"

namespace HostActors
{
	TArray<AActor*> GetSelected()
	{
		TArray<AActor*> Actors;
		const USelection* Selection = GEditor != nullptr ? GEditor->GetSelectedActors() : nullptr;
		for (int32 Index = 0; Selection != nullptr && Index < Selection->Num(); ++Index)
		{
			if (AActor* Actor = Cast<AActor>(Selection->GetSelectedObject(Index)))
			{
				Actors.Add(Actor);
			}
		}
		return Actors;
	}

	void Select(const TArray<AActor*>& Actors)
	{
		if (GEditor == nullptr || GetSelected() == Actors)
		{
			return;
		}
		const FScopedTransaction Step(LOCTEXT("Select", "Select actors"));
		GEditor->SelectNone(false, true);
		for (AActor* Actor : Actors)
		{
			GEditor->SelectActor(Actor, true, false, true);
		}
		GEditor->NoteSelectionChange();
	}

	void Rename(AActor& Actor, const FString& Label)
	{
		const FString Wanted = Label.TrimStartAndEnd();
		if (Wanted.IsEmpty() || Wanted.Equals(Actor.GetActorLabel()))
		{
			return;
		}
		const FScopedTransaction Step(LOCTEXT("Rename", "Rename actor"));
		Actor.Modify();
		Actor.SetActorLabel(Wanted);
	}

	void Move(AActor& Actor, const FVector& Location)
	{
		if (Actor.GetActorLocation() == Location)
		{
			return;
		}
		const FScopedTransaction Step(LOCTEXT("Move", "Move actor"));
		Actor.Modify();
		Actor.SetActorLocation(Location);
	}

	void Delete(const TArray<AActor*>& Actors)
	{
		if (Actors.IsEmpty())
		{
			return;
		}
		const FScopedTransaction Step(LOCTEXT("Delete", "Delete actors"));
		for (AActor* Actor : Actors)
		{
			GEditor->SelectActor(Actor, false, false, true);
			Actor->Modify();
			Actor->Destroy();
		}
		GEditor->NoteSelectionChange();
	}
}

#undef LOCTEXT_NAMESPACE
