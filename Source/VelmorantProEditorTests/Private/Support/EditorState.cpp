// Copyright Velmorant. All Rights Reserved.

#include "Support/EditorState.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Editor/Transactor.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "Framework/Notifications/NotificationManager.h"
#include "GameFramework/Actor.h"
#include "Selection.h"
#include "UObject/Package.h"

FVelmorantEditorState::FVelmorantEditorState()
	: World(GEditor->GetEditorWorldContext(false).World())
	, LevelPackage(World->GetCurrentLevel()->GetPackage())
	, Actors(FindActors())
	, NumSteps(CountSteps())
	, bLevelWasDirty(LevelPackage->IsDirty())
{
	for (int32 Index = 0; Index < GEditor->GetSelectedActors()->Num(); ++Index)
	{
		Selected.Add(Cast<AActor>(GEditor->GetSelectedActors()->GetSelectedObject(Index)));
	}
}

FVelmorantEditorState::~FVelmorantEditorState()
{
	const bool bCanRedo = false;
	while (CountNewSteps() > 0 && GEditor->UndoTransaction(bCanRedo))
	{
	}
	const bool bShouldModifyLevel = false;
	for (const TWeakObjectPtr<AActor>& Actor : FindActors())
	{
		if (!Actors.Contains(Actor))
		{
			World->DestroyActor(Actor.Get(), false, bShouldModifyLevel);
		}
	}
	GEditor->SelectNone(false, true);
	for (const TWeakObjectPtr<AActor>& Actor : Selected)
	{
		if (Actor.IsValid())
		{
			GEditor->SelectActor(Actor.Get(), true, false, true);
		}
	}
	GEditor->NoteSelectionChange();
	LevelPackage->SetDirtyFlag(bLevelWasDirty);
}

int32 FVelmorantEditorState::CountSteps()
{
	return GEditor->Trans ? GEditor->Trans->GetQueueLength() - GEditor->Trans->GetUndoCount() : 0;
}

int32 FVelmorantEditorState::CountNewSteps() const
{
	return CountSteps() - NumSteps;
}

TArray<TWeakObjectPtr<AActor>> FVelmorantEditorState::FindActors() const
{
	TArray<TWeakObjectPtr<AActor>> Found;
	for (TActorIterator<AActor> Actor(World); Actor; ++Actor)
	{
		Found.Add(*Actor);
	}
	return Found;
}

FVelmorantNotificationsAllowed::FVelmorantNotificationsAllowed(bool bAllowed)
	: bWereAllowed(FSlateNotificationManager::Get().AreNotificationsAllowed())
{
	FSlateNotificationManager::Get().SetAllowNotifications(bAllowed);
}

FVelmorantNotificationsAllowed::~FVelmorantNotificationsAllowed()
{
	FSlateNotificationManager::Get().SetAllowNotifications(bWereAllowed);
}
