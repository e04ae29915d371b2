// Copyright Velmorant. All Rights Reserved.

#include "EditorWorld.h"

#include "Editor.h"
#include "Engine/World.h"
#include "HostEditor.h"
#include "HostPackages.h"
#include "HostProblems.h"
#include "HostState.h"
#include "Misc/Paths.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "EditorWorld"

namespace EditorWorld
{
	/** Numbers for names that must not repeat within a boot. */
	struct FCounters
	{
		int32 Untitled = 0;
		int32 Closed = 0;
	};
	THostState<FCounters> Counters;

	UWorld* GetWorld()
	{
		return GEditor != nullptr ? GEditor->GetEditorWorldContext().World() : nullptr;
	}

	void SetWorld(UWorld* World)
	{
		World->WorldType = EWorldType::Editor;
		GEditor->GetEditorWorldContext().SetCurrentWorld(World);
	}

	UWorld* MakeUntitled(const FString& PackageName)
	{
		return UWorld::CreateWorld(EWorldType::Editor, true, NAME_None, CreatePackage(*PackageName));
	}

	FString MakeUntitledName()
	{
		return FString::Printf(TEXT("/Temp/Untitled_%d"), ++Counters.Get().Untitled);
	}

	/** The file a handler of OnMapLoad is told: where the engine keeps maps, whatever the host's own file is called. */
	FString MakeMapFilename(const FString& PackageName)
	{
		FString Relative = PackageName;
		const bool bInProject = Relative.RemoveFromStart(TEXT("/Game/"));
		return (bInProject ? FPaths::ProjectContentDir() + Relative : PackageName) + TEXT(".umap");
	}

	bool AskForPermission(const FString& PackageName)
	{
		FCanLoadMap CanLoad;
		FEditorDelegates::OnMapLoad.Broadcast(MakeMapFilename(PackageName), CanLoad);
		return CanLoad.Get();
	}

	UWorld* Load(const FString& PackageName)
	{
		if (HostPackages::GetStored(PackageName) == HostPackages::EStored::Nothing)
		{
			HostProblems::Report(MakeMapFilename(PackageName), 0, TEXT("there is no such level"), TEXT("check the name of the level"));
			return nullptr;
		}
		UObject* Asset = HostPackages::LoadAsset(PackageName); // a file that is refused is reported there
		UWorld* World = Cast<UWorld>(Asset);
		if (World == nullptr && Asset != nullptr)
		{
			HostProblems::Report(HostPackages::FindFile(PackageName), 0, TEXT("this is an asset, not a level"), TEXT("name a level"));
		}
		return World;
	}

	/** Destroyed actors leave empty slots; files hold none. */
	void DropEmptySlots(const UWorld& World)
	{
		for (ULevel* Level : World.GetLevels())
		{
			Level->Actors.RemoveAll([](const TObjectPtr<AActor>& Actor) { return Actor == nullptr; });
		}
	}
}

void EditorWorld::Close()
{
	UWorld* World = GetWorld();
	if (World == nullptr)
	{
		return;
	}
	GEditor->ResetTransaction(LOCTEXT("ResetForMap", "the map is closed"));
	GEditor->SelectNone(GEditor->GetSelectedActorCount() > 0, true);
	GEditor->GetEditorWorldContext().SetCurrentWorld(nullptr);
	UPackage* Package = World->GetPackage();
	World->CleanupWorld();
	Package->Rename(*FString::Printf(TEXT("/Temp/Closed_%d"), ++Counters.Get().Closed), nullptr, REN_DontCreateRedirectors | REN_DoNotDirty);
	Package->SetDirtyFlag(false);
	Package->ClearFlags(RF_Public | RF_Standalone);
	Package->MarkAsGarbage();
}

HostEditor::EOpenMap HostEditor::OpenMap(const FString& InPackageName)
{
	FString PackageName = InPackageName;
	InPackageName.Split(TEXT("."), &PackageName, nullptr);
	const bool bUntitled = PackageName.IsEmpty();
	if (bUntitled)
	{
		PackageName = EditorWorld::MakeUntitledName();
	}
	if (!EditorWorld::AskForPermission(PackageName))
	{
		return EOpenMap::Forbidden;
	}
	// The same map again is wanted afresh: it must be closed before it can be read. Any other one is read first, in case it cannot be.
	const bool bAgain = PackageName == GetOpenMap();
	UWorld* World = nullptr;
	if (!bUntitled && !bAgain)
	{
		World = EditorWorld::Load(PackageName);
		if (World == nullptr)
		{
			return EOpenMap::Failed;
		}
	}
	EditorWorld::Close();
	if (World == nullptr)
	{
		World = bUntitled ? EditorWorld::MakeUntitled(PackageName) : EditorWorld::Load(PackageName);
	}
	EditorWorld::SetWorld(World != nullptr ? World : EditorWorld::MakeUntitled(EditorWorld::MakeUntitledName()));
	return World != nullptr ? EOpenMap::Opened : EOpenMap::Failed;
}

FString HostEditor::GetOpenMap()
{
	const UWorld* World = EditorWorld::GetWorld();
	return World != nullptr ? World->GetPackage()->GetName() : FString();
}

bool HostEditor::CanSaveOpenMap()
{
	return HostPackages::IsValidPackageName(GetOpenMap());
}

bool HostEditor::SaveOpenMap()
{
	const UWorld* World = EditorWorld::GetWorld();
	if (World == nullptr || !CanSaveOpenMap())
	{
		HostProblems::Report(GetOpenMap(), 0, TEXT("the open level has no place in the project yet"), TEXT("save it under a name first"));
		return false;
	}
	EditorWorld::DropEmptySlots(*World);
	return HostPackages::Save(World->GetPackage()).Succeeded();
}

bool HostEditor::SaveOpenMapAs(const FString& PackageName)
{
	UWorld* World = EditorWorld::GetWorld();
	FString Reason;
	if (World == nullptr || !HostPackages::IsValidPackageName(PackageName, &Reason))
	{
		HostProblems::Report(PackageName, 0, TEXT("no level can be saved under this name: ") + Reason, TEXT("choose another name"));
		return false;
	}
	if (HostPackages::GetStored(PackageName) != HostPackages::EStored::Nothing || FindPackage(nullptr, *PackageName) != nullptr)
	{
		HostProblems::Report(PackageName, 0, TEXT("there is something of this name already"), TEXT("choose another name"));
		return false;
	}
	FString Folder;
	FString ShortName;
	PackageName.Split(TEXT("/"), &Folder, &ShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	World->GetPackage()->Rename(*PackageName, nullptr, REN_DontCreateRedirectors);
	World->Rename(*ShortName, nullptr, REN_DontCreateRedirectors);
	return SaveOpenMap();
}

#undef LOCTEXT_NAMESPACE
