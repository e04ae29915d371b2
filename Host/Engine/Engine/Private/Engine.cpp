// Copyright Velmorant. All Rights Reserved.

#include "Engine/Engine.h"

#include "DataTableStorage.h"
#include "Engine/World.h"
#include "Modules/ModuleManager.h"

IMPLEMENT_MODULE(FDefaultModuleImpl, Engine)

DEFINE_LOG_CATEGORY_STATIC(LogEngine, Log, All);

UEngine* GEngine = nullptr;

void UEngine::Init(IEngineLoop*)
{
	FDataTableStorage::Register();
	EngineSubsystemCollection = MakeUnique<FObjectSubsystemCollection<UEngineSubsystem>>();
	EngineSubsystemCollection->Initialize(this);
}

void UEngine::PreExit()
{
	if (EngineSubsystemCollection)
	{
		EngineSubsystemCollection->Deinitialize();
		EngineSubsystemCollection.Reset();
	}
}

UWorld* UEngine::GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const
{
	UWorld* World = Object != nullptr ? Object->GetWorld() : nullptr;
	if (World == nullptr)
	{
		check(ErrorMode != EGetWorldErrorMode::Assert);
		UE_CLOG(ErrorMode == EGetWorldErrorMode::LogAndReturnNull, LogEngine, Warning, TEXT("%s belongs to no world."),
			Object != nullptr ? *Object->GetPathName() : TEXT("A null object"));
	}
	return World;
}
