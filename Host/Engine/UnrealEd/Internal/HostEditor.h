// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/**
 * The editor engine as its host sees it: made and destroyed once per boot, with one map open at a time.
 *
 * A boot calls Create(), then loads modules, then OpenMap() for the start-up map, then FinishInitialization();
 * Destroy() comes after the modules were shut down.
 */
namespace HostEditor
{
	/** Makes GEditor, which is GEngine, with its subsystems and an empty untitled world. */
	void Create();

	/** Takes the subsystems down, then the engine; GEditor and GEngine are null afterwards. Harmless without an engine. */
	void Destroy();

	//~ Maps

	enum class EOpenMap : uint8
	{
		Opened,
		Forbidden, // a handler of FEditorDelegates::OnMapLoad said no; the world that was open stays
		Failed, // there is no such level, or it cannot be read; reported to HostProblems. The open world stays; only one that
				// was asked for again has been closed already, and an untitled one is open.
	};

	/**
	 * Announces the load to FEditorDelegates::OnMapLoad, then opens the map instead of the one that is open. Unsaved changes of that one are lost.
	 * @param PackageName "/Game/Maps/Tower", also with ".Tower" behind it; empty opens a new, untitled map
	 */
	EOpenMap OpenMap(const FString& PackageName);

	/** Package name of the open map; "/Temp/Untitled_N" for an untitled one, empty when none is open. */
	FString GetOpenMap();

	/** Whether the open map has a package that could be saved: untitled ones have not. */
	bool CanSaveOpenMap();

	/** Writes the open map, changed or not. @return whether it was written; the reason why not goes to HostProblems. */
	bool SaveOpenMap();

	/** Gives an untitled map, or another copy of the open one, the package PackageName, and writes it. Nothing may be stored there yet. */
	bool SaveOpenMapAs(const FString& PackageName);

	/** Broadcasts FEditorDelegates::OnEditorInitialized. Only the first call of a boot does anything. */
	void FinishInitialization(double Seconds);

	//~ Restart

	/** One call of FUnrealEdMisc::RestartEditor(). */
	struct FRestartRequest
	{
		bool bWarn = false;
		TOptional<FString> NewCommandLine;
		TArray<FString> UnsavedPackages; // that were dirty at that moment, by name
	};

	/** In order of the calls. */
	const TArray<FRestartRequest>& GetRestartRequests();

	//~ Selection

	/** Selects so many surfaces of brushes, as a person may beside actors; that is all that is known of them here. */
	void SelectSurfaces(int32 Num);
	int32 GetNumSelectedSurfaces();

	//~ Viewports

	struct FViewport
	{
		FString Name;
		FVector ViewDirection = FVector::ZeroVector; // of length one; it never turns
		FVector CameraLocation = FVector::ZeroVector; // centimetres
		FVector Target = FVector::ZeroVector;
		TArray<FString> FocusedActors; // labels of what it was last moved to
		int32 NumMoves = 0;
		bool bActive = false;
	};

	/** The perspective one, which is active, then the three others of the usual layout. */
	const TArray<FViewport>& GetViewports();
}
