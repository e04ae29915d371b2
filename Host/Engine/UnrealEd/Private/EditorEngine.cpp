// Copyright Velmorant. All Rights Reserved.

#include "Editor/EditorEngine.h"

#include "Editor.h"
#include "EditorViewports.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HostState.h"
#include "Selection.h"
#include "Transactions/TransBuffer.h"

#define LOCTEXT_NAMESPACE "EditorEngine"

namespace EditorEngine
{
	THostState<FEditorViewports> Viewports;
	THostState<int32> NumSelectedSurfaces;
}

void UEditorEngine::Init(IEngineLoop* InEngineLoop)
{
	EditorWorldContext.WorldType = EWorldType::Editor;
	SelectedActors = NewObject<USelection>(this, TEXT("SelectedActors"), RF_Transactional);
	Trans = NewObject<UTransBuffer>(this);
	EditorWorldContext.SetCurrentWorld(UWorld::CreateWorld(EWorldType::Editor, true));
	Super::Init(InEngineLoop);
	EditorSubsystemCollection = MakeUnique<FObjectSubsystemCollection<UEditorSubsystem>>();
	EditorSubsystemCollection->Initialize(this);
}

void UEditorEngine::PreExit()
{
	if (EditorSubsystemCollection)
	{
		EditorSubsystemCollection->Deinitialize();
		EditorSubsystemCollection.Reset();
	}
	ResetTransaction(LOCTEXT("ResetForExit", "the editor goes down"));
	Trans = nullptr;
	Super::PreExit();
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool)
{
	return EditorWorldContext;
}

void UEditorEngine::SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool)
{
	if (bDeselectBSPSurfs)
	{
		EditorEngine::NumSelectedSurfaces.Get() = 0;
	}
	SelectedActors->DeselectAll();
	if (bNoteSelectionChange)
	{
		NoteSelectionChange();
	}
}

void UEditorEngine::SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden, bool bForceRefresh)
{
	if (Actor == nullptr || (bInSelected && Actor->IsHidden() && !bSelectEvenIfHidden))
	{
		return;
	}
	const bool bChanges = SelectedActors->IsSelected(Actor) != bInSelected;
	if (bChanges && bInSelected)
	{
		SelectedActors->Select(Actor);
	}
	else if (bChanges)
	{
		SelectedActors->Deselect(Actor);
	}
	if (bNotify && (bChanges || bForceRefresh))
	{
		NoteSelectionChange();
	}
}

void UEditorEngine::NoteSelectionChange(bool bNotify)
{
	if (bNotify)
	{
		SelectedActors->NoteSelectionChanged();
	}
}

int32 UEditorEngine::GetSelectedActorCount() const
{
	return SelectedActors->Num();
}

int32 UEditorEngine::BeginTransaction(const FText& Description)
{
	return CanTransact() ? Trans->Begin(nullptr, Description) : INDEX_NONE;
}

int32 UEditorEngine::EndTransaction()
{
	return Trans != nullptr ? Trans->End() : INDEX_NONE;
}

bool UEditorEngine::UndoTransaction(bool bCanRedo)
{
	const bool bDone = Trans != nullptr && Trans->Undo(bCanRedo);
	if (bDone)
	{
		FEditorDelegates::PostUndoRedo.Broadcast();
	}
	return bDone;
}

bool UEditorEngine::RedoTransaction()
{
	const bool bDone = Trans != nullptr && Trans->Redo();
	if (bDone)
	{
		FEditorDelegates::PostUndoRedo.Broadcast();
	}
	return bDone;
}

bool UEditorEngine::CanTransact()
{
	return Trans != nullptr && !GIsTransacting;
}

bool UEditorEngine::IsTransactionActive() const
{
	return Trans != nullptr && Trans->IsActive();
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	if (Trans != nullptr)
	{
		Trans->Reset(Reason);
	}
}

void UEditorEngine::MoveViewportCamerasToActor(AActor& Actor, bool bActiveViewportOnly)
{
	const TArray<AActor*> Actors = {&Actor};
	MoveViewportCamerasToActor(Actors, bActiveViewportOnly);
}

void UEditorEngine::MoveViewportCamerasToActor(const TArray<AActor*>& Actors, bool bActiveViewportOnly)
{
	FVector Sum = FVector::ZeroVector;
	TArray<FString> Labels;
	for (const AActor* Actor : Actors)
	{
		if (IsValid(Actor))
		{
			Sum = Sum + Actor->GetActorLocation();
			Labels.Add(Actor->GetActorLabel());
		}
	}
	if (!Labels.IsEmpty())
	{
		EditorEngine::Viewports.Get().LookAt(Sum * (1.0 / Labels.Num()), Labels, bActiveViewportOnly);
	}
}

void HostEditor::SelectSurfaces(int32 Num)
{
	EditorEngine::NumSelectedSurfaces.Get() = Num;
}

int32 HostEditor::GetNumSelectedSurfaces()
{
	return EditorEngine::NumSelectedSurfaces.Get();
}

const TArray<HostEditor::FViewport>& HostEditor::GetViewports()
{
	return EditorEngine::Viewports.Get().Get();
}

#undef LOCTEXT_NAMESPACE
