// Copyright Velmorant. All Rights Reserved.

#include "Kismet/GameplayStatics.h"

#include "Engine/Engine.h"
#include "EngineUtils.h"

namespace GameplayStatics
{
	/** Null when there is nothing to look for or nowhere to look. */
	UWorld* FindWorld(const UObject* WorldContextObject, UClass* ActorClass)
	{
		return ActorClass != nullptr && GEngine != nullptr
			? GEngine->GetWorldFromContextObject(WorldContextObject, EGetWorldErrorMode::LogAndReturnNull)
			: nullptr;
	}
}

void UGameplayStatics::GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors)
{
	OutActors.Reset();
	if (UWorld* World = GameplayStatics::FindWorld(WorldContextObject, ActorClass))
	{
		for (TActorIterator<AActor> It(World, ActorClass); It; ++It)
		{
			OutActors.Add(*It);
		}
	}
}

AActor* UGameplayStatics::GetActorOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass)
{
	if (UWorld* World = GameplayStatics::FindWorld(WorldContextObject, ActorClass))
	{
		TActorIterator<AActor> It(World, ActorClass);
		return It ? *It : nullptr;
	}
	return nullptr;
}
