// Copyright Velmorant. All Rights Reserved.
// Classes for tests of worlds, subsystems, tables and Blueprints.

#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Engine/DataTable.h"
#include "GameFramework/Actor.h"
#include "Subsystems/EngineSubsystem.h"
#include "TestActors.generated.h"

UCLASS()
class TESTACTORS_API ATestActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 Storey = 0;

	UPROPERTY()
	TObjectPtr<AActor> Neighbour;
};

UCLASS()
class TESTACTORS_API ATestSpecialActor : public ATestActor
{
	GENERATED_BODY()
};

UCLASS(Abstract)
class TESTACTORS_API ATestAbstractActor : public AActor
{
	GENERATED_BODY()
};

UCLASS(NotBlueprintable)
class TESTACTORS_API ATestSealedActor : public AActor
{
	GENERATED_BODY()
};

UCLASS()
class TESTACTORS_API UTestPlainObject : public UObject
{
	GENERATED_BODY()
};

USTRUCT()
struct TESTACTORS_API FTestRow : public FTableRowBase
{
	GENERATED_BODY()

	UPROPERTY()
	FString Title;

	UPROPERTY()
	int32 Size = 3;

	UPROPERTY()
	TObjectPtr<UObject> Kept;
};

USTRUCT()
struct TESTACTORS_API FTestOtherRow : public FTableRowBase
{
	GENERATED_BODY()
};

/** Written by subsystems, read by tests: "Early up", "Late up", … */
struct TESTACTORS_API FTestSubsystemDiary
{
	static TArray<FString>& Get();
};

UCLASS()
class TESTACTORS_API UTestFirstSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	//~ Begin USubsystem
	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;
	//~ End USubsystem
};

UCLASS()
class TESTACTORS_API UTestNeededSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	//~ Begin USubsystem
	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;
	//~ End USubsystem
};

UCLASS()
class TESTACTORS_API UTestUnwantedSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	//~ Begin USubsystem
	virtual bool ShouldCreateSubsystem(UObject* Outer) const override;
	//~ End USubsystem
};

UCLASS()
class TESTACTORS_API UTestEditorSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()
};
