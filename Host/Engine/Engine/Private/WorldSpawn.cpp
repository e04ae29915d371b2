// Copyright Velmorant. All Rights Reserved.

#include "Engine/World.h"

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogSpawn, Log, All);

namespace WorldSpawn
{
	/** Before a step spawned it, an actor was as good as destroyed: that is what undo makes of it. */
	void RecordSpawning(AActor& Actor)
	{
		if (GUndo != nullptr)
		{
			Actor.MarkAsGarbage();
			Actor.Modify(false);
			Actor.ClearGarbage();
		}
	}
}

AActor* UWorld::SpawnActor(UClass* InClass, FVector const* Location, FRotator const* Rotation, const FActorSpawnParameters& SpawnParameters)
{
	FTransform Transform;
	if (Location != nullptr)
	{
		Transform.SetLocation(*Location);
	}
	if (Rotation != nullptr)
	{
		Transform.SetRotation(Rotation->Quaternion());
	}
	AActor* Actor = SpawnActor(InClass, &Transform, SpawnParameters);
	if (Actor != nullptr && Rotation != nullptr)
	{
		Actor->ActorRotation = *Rotation; // as given: the way through a transform would normalise it
	}
	return Actor;
}

AActor* UWorld::SpawnActor(UClass* Class, FTransform const* UserTransformPtr, const FActorSpawnParameters& SpawnParameters)
{
	ULevel* Level = SpawnParameters.OverrideLevel != nullptr ? SpawnParameters.OverrideLevel : CurrentLevel.Get();
	FName Name;
	if (!CanSpawn(Class, SpawnParameters) || Level == nullptr || !ResolveSpawnName(*Level, *Class, SpawnParameters, Name))
	{
		return nullptr;
	}
	Level->Modify();
	AActor* Actor = NewObject<AActor>(Level, Class, Name, SpawnParameters.ObjectFlags, SpawnParameters.Template);
	Actor->bSelected = false;
	Actor->ActorLabel.Empty(); // a template's label is the template's
	if (UserTransformPtr != nullptr)
	{
		Actor->ActorLocation = UserTransformPtr->GetLocation();
		Actor->ActorRotation = UserTransformPtr->Rotator();
		Actor->ActorScale = UserTransformPtr->GetScale3D();
	}
	WorldSpawn::RecordSpawning(*Actor);
	Level->Actors.Add(Actor);
	return Actor->bActorIsBeingDestroyed ? nullptr : Actor;
}

bool UWorld::CanSpawn(const UClass* Class, const FActorSpawnParameters& SpawnParameters) const
{
	if (Class == nullptr)
	{
		UE_LOG(LogSpawn, Warning, TEXT("Nothing spawned: no class was given."));
		return false;
	}
	const FString ClassName = Class->GetPathName();
	if (!Class->IsChildOf(AActor::StaticClass()))
	{
		UE_LOG(LogSpawn, Warning, TEXT("Nothing spawned: %s is not an actor class."), *ClassName);
		return false;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated))
	{
		UE_LOG(LogSpawn, Warning, TEXT("Nothing spawned: %s is abstract or deprecated."), *ClassName);
		return false;
	}
	if (SpawnParameters.Template != nullptr && SpawnParameters.Template->GetClass() != Class)
	{
		UE_LOG(LogSpawn, Warning, TEXT("Nothing spawned: the template %s is not of class %s."), *SpawnParameters.Template->GetPathName(), *ClassName);
		return false;
	}
	if (bIsTearingDown)
	{
		UE_LOG(LogSpawn, Warning, TEXT("Nothing spawned: the world %s is going down."), *GetPathName());
		return false;
	}
	return true;
}

bool UWorld::ResolveSpawnName(ULevel& Level, const UClass& Class, const FActorSpawnParameters& SpawnParameters, FName& OutName) const
{
	using ENameMode = FActorSpawnParameters::ESpawnActorNameMode;
	OutName = SpawnParameters.Name;
	if (OutName.IsNone() || StaticFindObjectFast(nullptr, &Level, OutName) == nullptr)
	{
		return true;
	}
	const FString NameText = OutName.ToString();
	switch (SpawnParameters.NameMode)
	{
		case ENameMode::Requested:
			OutName = MakeUniqueObjectName(&Level, &Class, OutName);
			return true;
		case ENameMode::Required_Fatal:
			UE_LOG(LogSpawn, Fatal, TEXT("Cannot spawn an actor named %s: the level has an object of that name."), *NameText);
			return false;
		case ENameMode::Required_ErrorAndReturnNull:
			UE_LOG(LogSpawn, Error, TEXT("Cannot spawn an actor named %s: the level has an object of that name."), *NameText);
			return false;
		default:
			return false;
	}
}
