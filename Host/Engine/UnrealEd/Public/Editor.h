// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"

/** Shared by all who are told of a map load: any of them may forbid it. */
struct FCanLoadMap
{
	bool Get() const { return bCanLoad; }
	void SetFalse() { bCanLoad = false; }

private:
	bool bCanLoad = true;
};

/** Events of the editor. Cleared when it goes down. */
struct UNREALED_API FEditorDelegates
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnMapLoad, const FString& /* Filename */, FCanLoadMap& /* OutCanLoadMap */);
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnEditorInitialized, double /* TimeToInitializeEditor, in seconds */);

	/** Before a map is loaded, the start-up map included. */
	static FOnMapLoad OnMapLoad;

	/** Once per editor, after the start-up map is open. */
	static FOnEditorInitialized OnEditorInitialized;

	/** After each undo and each redo: whoever shows values reads them again. */
	static FSimpleMulticastDelegate PostUndoRedo;
};

/** Null before the engine starts and after it has gone down. */
extern UNREALED_API UEditorEngine* GEditor;
