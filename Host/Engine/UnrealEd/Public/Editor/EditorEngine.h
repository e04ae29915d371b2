// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Engine/Engine.h"
#include "EditorEngine.generated.h"

class AActor;
class USelection;
class UTransactor;

/** The engine as the editor runs it: one open world, a selection, viewports. */
UCLASS(Config = Engine)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_BODY()

public:
	/** The context of the map being edited; its world is null while none is open. Host: nothing is ever played, so GWorld has no say. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	/** Null when no such subsystem was made. */
	template<typename TSubsystemClass>
	TSubsystemClass* GetEditorSubsystem() const
	{
		return EditorSubsystemCollection ? EditorSubsystemCollection->template GetSubsystem<TSubsystemClass>(TSubsystemClass::StaticClass()) : nullptr;
	}

	//~ Selection

	/** Host: there is nobody to warn about many actors. */
	virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true);

	/** A hidden actor is selected only when bSelectEvenIfHidden. Without bNotify, call NoteSelectionChange() afterwards. */
	virtual void SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false, bool bForceRefresh = false);

	virtual void NoteSelectionChange(bool bNotify = true);

	/** Never null between Init() and PreExit(). */
	USelection* GetSelectedActors() const { return SelectedActors; }
	int32 GetSelectedActorCount() const;

	//~ Undo. Steps are forgotten when another map opens; saving keeps them, and undoing afterwards dirties what was saved.

	/** See FScopedTransaction, which ends what it begins. @return how many are open around it; INDEX_NONE when none can be recorded now. */
	int32 BeginTransaction(const FText& Description);
	int32 EndTransaction();

	/** @return false when there is nothing to undo, or a step is open. Without bCanRedo the step is forgotten. */
	bool UndoTransaction(bool bCanRedo = true);
	bool RedoTransaction();

	/** Whether steps can be recorded: there is a buffer, and nothing is being undone. */
	bool CanTransact();
	bool IsTransactionActive() const;

	/** Forgets all steps. */
	void ResetTransaction(const FText& Reason);

	/** Null before Init() and after PreExit(). */
	UPROPERTY(Transient)
	TObjectPtr<UTransactor> Trans;

	//~ Viewports

	/** Moves the cameras of the active viewport, or of all of them, to look at what is given; nothing given moves nothing. */
	void MoveViewportCamerasToActor(AActor& Actor, bool bActiveViewportOnly);
	void MoveViewportCamerasToActor(const TArray<AActor*>& Actors, bool bActiveViewportOnly);

	//~ Begin UEngine
	virtual void Init(IEngineLoop* InEngineLoop) override;
	virtual void PreExit() override;
	//~ End UEngine

private:
	UPROPERTY(Transient)
	FWorldContext EditorWorldContext;

	UPROPERTY(Transient)
	TObjectPtr<USelection> SelectedActors;

	TUniquePtr<FObjectSubsystemCollection<UEditorSubsystem>> EditorSubsystemCollection; // set between Init() and PreExit()
};
