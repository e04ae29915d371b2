// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"

#include "HostState.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, UnrealEd)

UEditorEngine* GEditor = nullptr;

FEditorDelegates::FOnMapLoad FEditorDelegates::OnMapLoad;
FEditorDelegates::FOnEditorInitialized FEditorDelegates::OnEditorInitialized;
FSimpleMulticastDelegate FEditorDelegates::PostUndoRedo;

namespace Editor
{
	const FHostStateReset Reset([] {
		FEditorDelegates::OnMapLoad.Clear();
		FEditorDelegates::OnEditorInitialized.Clear();
		FEditorDelegates::PostUndoRedo.Clear();
		GEditor = nullptr;
		GEngine = nullptr;
	});
}
