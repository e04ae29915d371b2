// Copyright Velmorant. All Rights Reserved.

#include "VelmorantSDKEngineSubsystem.h"

#include "DataFileService.h"
#include "Engine/Engine.h"
#include "TimeLimitedService.h"
#include "VelmorantDeveloperUser.h"

UVelmorantSDKEngineSubsystem::UVelmorantSDKEngineSubsystem() = default;
UVelmorantSDKEngineSubsystem::~UVelmorantSDKEngineSubsystem() = default;

UVelmorantSDKEngineSubsystem* UVelmorantSDKEngineSubsystem::Get()
{
	return GEngine ? GEngine->GetEngineSubsystem<UVelmorantSDKEngineSubsystem>() : nullptr;
}

UVelmorantDeveloperUser* UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(bool bCreateIfMissing)
{
	UVelmorantSDKEngineSubsystem* Subsystem = Get();
	if (!Subsystem)
	{
		return nullptr;
	}
	if (!Subsystem->DeveloperUser && bCreateIfMissing)
	{
		Subsystem->DeveloperUser = NewObject<UVelmorantDeveloperUser>(Subsystem);
	}
	return Subsystem->DeveloperUser;
}

void UVelmorantSDKEngineSubsystem::EnsureUserEditorContext()
{
	if (UVelmorantSDKEngineSubsystem* Subsystem = Get())
	{
		GetVelmorantEditorUser(true);
		Subsystem->bEditorContext = true;
	}
}

UVelmorantUser* UVelmorantSDKEngineSubsystem::GetVelmorantUser()
{
	if (bEditorContext || (DeveloperUser && DeveloperUser->ShouldUseAtRuntime()))
	{
		return GetVelmorantEditorUser(true);
	}
	if (!RuntimeUser)
	{
		RuntimeUser = NewObject<UVelmorantUser>(this);
	}
	return RuntimeUser;
}

IVelmorantService& UVelmorantSDKEngineSubsystem::GetService()
{
	if (!Service)
	{
		Service = MakeUnique<FTimeLimitedService>(MakeUnique<FDataFileService>());
	}
	return *Service;
}

void UVelmorantSDKEngineSubsystem::Deinitialize()
{
	Service.Reset(); // nothing is answered any more
	Super::Deinitialize();
}
