// Copyright Velmorant. All Rights Reserved.

#include "HostEditor.h"

#include "Editor.h"
#include "Engine/World.h"
#include "HostState.h"
#include "EditorWorld.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace HostEditorPrivate
{
	/** Whether this boot's editor has said that it is initialised. */
	THostState<bool> Initialized;
}

void HostEditor::Create()
{
	checkf(GEngine == nullptr, TEXT("The engine exists already."));
	UEditorEngine* Engine = NewObject<UEditorEngine>(GetTransientPackage());
	Engine->AddToRoot();
	GEngine = GEditor = Engine;
	Engine->Init(nullptr);
}

void HostEditor::Destroy()
{
	if (GEditor == nullptr)
	{
		return;
	}
	GEditor->PreExit();
	GEditor->SelectNone(false, true); // whoever listened may have gone already
	EditorWorld::Close();
	GEditor->RemoveFromRoot();
	GEditor = nullptr;
	GEngine = nullptr;
}

void HostEditor::FinishInitialization(double Seconds)
{
	bool& bInitialized = HostEditorPrivate::Initialized.Get();
	if (!bInitialized)
	{
		bInitialized = true;
		FEditorDelegates::OnEditorInitialized.Broadcast(Seconds);
	}
}
