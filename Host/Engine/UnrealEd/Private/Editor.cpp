// Copyright Velmorant. All Rights Reserved.

#include "Editor.h"

#include "HostState.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, UnrealEd)

UEditorEngine* GEditor = nullptr;

FEditorDelegates::FOnMapLoad FEditorDelegates::OnMapLoad;
FEditorDelegates::FOnEditorInitialized FEditorDelegates::OnEditorInitialized;

namespace Editor
{
	const FHostStateReset Reset([] {
		FEditorDelegates::OnMapLoad.Clear();
		FEditorDelegates::OnEditorInitialized.Clear();
		GEditor = nullptr;
		GEngine = nullptr;
	});
}
