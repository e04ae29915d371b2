// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Subsystems/EngineSubsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "Templates/UniquePtr.h"
#include "UObject/Object.h"
#include "Engine.generated.h"

class IEngineLoop;
class UWorld;

/** What to do about an object that belongs to no world. */
enum class EGetWorldErrorMode
{
	ReturnNull,
	LogAndReturnNull,
	Assert,
};

/** One world that the engine deals with, and what it is for. */
USTRUCT()
struct ENGINE_API FWorldContext
{
	GENERATED_BODY()

	/** Null while no map is open. */
	UWorld* World() const { return ThisCurrentWorld; }

	void SetCurrentWorld(UWorld* World) { ThisCurrentWorld = World; }

	EWorldType::Type WorldType = EWorldType::None;

private:
	UPROPERTY(Transient)
	TObjectPtr<UWorld> ThisCurrentWorld;
};

/** The engine of one process. The host makes the editor's only. */
UCLASS(Abstract, Config = Engine)
class ENGINE_API UEngine : public UObject
{
	GENERATED_BODY()

public:
	/** Makes the engine's subsystems. The host has no engine loop and passes null. */
	virtual void Init(IEngineLoop* InEngineLoop);

	/** Takes the subsystems down. */
	virtual void PreExit();

	/** Null before Init(), after PreExit(), and for a class that was not made. */
	template<typename TSubsystemClass>
	TSubsystemClass* GetEngineSubsystem() const
	{
		return EngineSubsystemCollection ? EngineSubsystemCollection->template GetSubsystem<TSubsystemClass>(TSubsystemClass::StaticClass()) : nullptr;
	}

	/** The world that the object belongs to. */
	UWorld* GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const;

private:
	TUniquePtr<FObjectSubsystemCollection<UEngineSubsystem>> EngineSubsystemCollection; // set between Init() and PreExit()
};

/** Null before the engine starts and after it has gone down. */
extern ENGINE_API UEngine* GEngine;
