// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "UObject/Object.h"
#include "World.generated.h"

/** How an actor is to be spawned. The defaults put an actor with a made-up name into the current level. */
struct ENGINE_API FActorSpawnParameters
{
	/** What to do when another object in the level has the name already. */
	enum class ESpawnActorNameMode : uint8
	{
		Required_Fatal,
		Required_ErrorAndReturnNull,
		Required_ReturnNull,
		Requested, // then another name is made up
	};

	FName Name; // None makes one up
	AActor* Template = nullptr; // copied instead of the class's default object; must be of the class
	ULevel* OverrideLevel = nullptr; // instead of the current level
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingOverride = ESpawnActorCollisionHandlingMethod::Undefined;
	ESpawnActorNameMode NameMode = ESpawnActorNameMode::Required_Fatal;
	EObjectFlags ObjectFlags = RF_Transactional;
};

/** An open map: its levels and, through them, its actors. The world bears its package's short name. */
UCLASS()
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	/** The level of the map's own file. */
	UPROPERTY()
	TObjectPtr<ULevel> PersistentLevel;

	EWorldType::Type WorldType = EWorldType::None;

	/** Set while the world is going down: nothing can be spawned any more. */
	bool bIsTearingDown = false;

	/**
	 * Makes a world with an empty level.
	 * @param WorldName     None takes the package's short name
	 * @param InWorldPackage null makes a package below "/Temp/"
	 */
	static UWorld* CreateWorld(EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName = NAME_None, UPackage* InWorldPackage = nullptr);

	/** Where actors are spawned unless told otherwise. */
	ULevel* GetCurrentLevel() const { return CurrentLevel; }

	/** The persistent level first. */
	const TArray<ULevel*>& GetLevels() const { return Levels; }

	//~ Spawning. Null when the class is null, abstract, deprecated or no actor's, when the name is taken, or when the world is going down.

	AActor* SpawnActor(UClass* InClass, FVector const* Location = nullptr, FRotator const* Rotation = nullptr, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());
	AActor* SpawnActor(UClass* Class, FTransform const* UserTransformPtr, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());

	template<class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(T::StaticClass(), nullptr, nullptr, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	template<class T>
	T* SpawnActor(FVector const& Location, FRotator const& Rotation, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(T::StaticClass(), &Location, &Rotation, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	template<class T>
	T* SpawnActor(UClass* Class, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(Class, nullptr, nullptr, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	template<class T>
	T* SpawnActor(UClass* Class, FVector const& Location, FRotator const& Rotation, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(Class, &Location, &Rotation, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	template<class T>
	T* SpawnActor(UClass* Class, FTransform const& Transform, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(Class, &Transform, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	/** See AActor::Destroy(). */
	bool DestroyActor(AActor* Actor, bool bNetForce = false, bool bShouldModifyLevel = true);

	/** Marks the world's objects as garbage; whoever holds one weakly sees it gone at once. */
	void CleanupWorld();

	//~ Begin UObject
	virtual UWorld* GetWorld() const override;
	virtual void PostLoad() override;
	//~ End UObject

private:
	bool CanSpawn(const UClass* Class, const FActorSpawnParameters& SpawnParameters) const;
	bool ResolveSpawnName(ULevel& Level, const UClass& Class, const FActorSpawnParameters& SpawnParameters, FName& OutName) const;
	void InitializeLevels();

	UPROPERTY(Transient)
	TArray<ULevel*> Levels;

	UPROPERTY(Transient)
	TObjectPtr<ULevel> CurrentLevel;
};
