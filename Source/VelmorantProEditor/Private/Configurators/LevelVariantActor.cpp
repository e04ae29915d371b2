// Copyright Velmorant. All Rights Reserved.

#include "Configurators/LevelVariantActor.h"

#include "Configurators/LevelVariantGeneration.h"
#include "Editor.h"
#include "EditorServices/VelmorantChange.h"
#include "EditorServices/VelmorantNotifications.h"
#include "Engine/World.h"
#include "EngineUtils.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "VelmorantConfiguratorDataAsset.h"
#include "VelmorantLevelVariantSetsActor.h"

#define LOCTEXT_NAMESPACE "FVelmorantProEditor"

namespace LevelVariantActor
{
	const float OutcomeSeconds = 7.0f;
	const FVector SpawnLocation(0.0, 0.0, 500.0); // whatever the level holds

	AVelmorantLevelVariantSetsActor* FindActor(UWorld* World)
	{
		TActorIterator<AVelmorantLevelVariantSetsActor> Actor(World);
		return Actor ? *Actor : nullptr; // further ones are ignored
	}

	AVelmorantLevelVariantSetsActor* SpawnActor(UWorld* World)
	{
		return Cast<AVelmorantLevelVariantSetsActor>(World->SpawnActor(AVelmorantLevelVariantSetsActor::StaticClass(), &SpawnLocation, &FRotator::ZeroRotator, FActorSpawnParameters()));
	}

	AVelmorantLevelVariantSetsActor* FindOrSpawnActor()
	{
		UWorld* World = GEditor->GetEditorWorldContext(false).World();
		AVelmorantLevelVariantSetsActor* Actor = World ? FindActor(World) : nullptr;
		if (Actor)
		{
			VelmorantNotifications::Popup(TEXT("Found LevelVariant at Current Level"), TEXT("Updated current Actor with Configurator Data"), SNotificationItem::CS_Success, OutcomeSeconds);
			return Actor;
		}

		Actor = World ? SpawnActor(World) : nullptr;
		if (!Actor)
		{
			VelmorantNotifications::Popup(TEXT("Failed Configuration Create LevelVariantActor"), TEXT("Couldn't create a LevelVariantActor in current level"), SNotificationItem::CS_Fail, OutcomeSeconds);
		}
		return Actor;
	}

	void Assign(UVelmorantConfiguratorDataAsset& DataAsset, AVelmorantLevelVariantSetsActor& Actor)
	{
		if (Actor.LevelVariantSets != DataAsset.LevelVariantSets || Actor.ConfiguratorData != &DataAsset)
		{
			VelmorantChange::Begin(Actor);
			Actor.LevelVariantSets = DataAsset.LevelVariantSets;
			Actor.ConfiguratorData = &DataAsset;
		}
	}

	void ShowToDesigner(AActor& Actor)
	{
		const bool bSelectEvenIfHidden = true;
		GEditor->GetSelectedActors()->Modify(); // undo brings the old selection back
		GEditor->SelectNone(false, true);
		GEditor->SelectActor(&Actor, true, false, bSelectEvenIfHidden);
		GEditor->NoteSelectionChange(); // once, for both
		GEditor->MoveViewportCamerasToActor(Actor, true);
	}
}

void LevelVariantActor::PlaceInLevel(UVelmorantConfiguratorDataAsset* ConfiguratorData)
{
	if (!ConfiguratorData)
	{
		return;
	}

	const FScopedTransaction Transaction(LOCTEXT("PlaceLevelVariantActorTransaction", "Place LevelVariantActor into Level"));
	if (ConfiguratorData->LevelVariantSets.IsNull())
	{
		LevelVariantGeneration::CreateOrUpdate(ConfiguratorData);
	}

	AVelmorantLevelVariantSetsActor* Actor = FindOrSpawnActor();
	if (Actor)
	{
		Assign(*ConfiguratorData, *Actor);
		ShowToDesigner(*Actor);
	}
}

#undef LOCTEXT_NAMESPACE
