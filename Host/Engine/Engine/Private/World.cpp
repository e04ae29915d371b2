// Copyright Velmorant. All Rights Reserved.

#include "Engine/World.h"

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

UWorld* UWorld::CreateWorld(EWorldType::Type InWorldType, bool, FName WorldName, UPackage* InWorldPackage)
{
	UPackage* Package = InWorldPackage;
	if (Package == nullptr)
	{
		Package = CreatePackage(*(TEXT("/Temp/") + (WorldName.IsNone() ? FString(TEXT("Untitled")) : WorldName.ToString())));
	}
	if (WorldName.IsNone())
	{
		FString Folder;
		FString ShortName = Package->GetName();
		Package->GetName().Split(TEXT("/"), &Folder, &ShortName, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		WorldName = FName(ShortName);
	}
	UWorld* World = NewObject<UWorld>(Package, WorldName, RF_Public | RF_Standalone | RF_Transactional);
	World->WorldType = InWorldType;
	World->PersistentLevel = NewObject<ULevel>(World, TEXT("PersistentLevel"), RF_Transactional);
	World->InitializeLevels();
	return World;
}

void UWorld::InitializeLevels()
{
	Levels.Reset();
	if (PersistentLevel != nullptr)
	{
		Levels.Add(PersistentLevel);
	}
	CurrentLevel = PersistentLevel;
}

void UWorld::PostLoad()
{
	Super::PostLoad();
	InitializeLevels();
	for (ULevel* Level : Levels)
	{
		// Actors whose class is gone, or that were destroyed before the file was written.
		Level->Actors.RemoveAll([](const TObjectPtr<AActor>& Actor) { return Actor == nullptr; });
	}
}

UWorld* UWorld::GetWorld() const
{
	return const_cast<UWorld*>(this);
}

bool UWorld::DestroyActor(AActor* Actor, bool, bool bShouldModifyLevel)
{
	ULevel* Level = Actor != nullptr ? Actor->GetLevel() : nullptr;
	const int32 Index = Level != nullptr ? Level->Actors.Find(Actor) : INDEX_NONE;
	if (Index == INDEX_NONE || Actor->bActorIsBeingDestroyed)
	{
		return false;
	}
	if (bShouldModifyLevel)
	{
		Level->Modify();
		Actor->Modify();
	}
	// The slot stays: somebody may be walking over the actors right now.
	Level->Actors[Index] = nullptr;
	Actor->bActorIsBeingDestroyed = true;
	Actor->MarkAsGarbage();
	return true;
}

void UWorld::CleanupWorld()
{
	bIsTearingDown = true;
	for (ULevel* Level : Levels)
	{
		for (AActor* Actor : Level->Actors)
		{
			if (Actor != nullptr)
			{
				Actor->bActorIsBeingDestroyed = true;
				Actor->MarkAsGarbage();
			}
		}
		Level->MarkAsGarbage();
	}
	ClearFlags(RF_Public | RF_Standalone);
	MarkAsGarbage();
}
