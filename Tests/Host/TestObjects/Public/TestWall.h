// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "TestFinish.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "TestWall.generated.h"

class UTestDoor;

/** A part that every wall owns. */
UCLASS()
class UTestSkirting : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Skirting")
	int32 Height = 6;
};

USTRUCT()
struct FTestNeighbour
{
	GENERATED_BODY()

	/** First, so that the type meets itself before anything in it that refers to objects. */
	UPROPERTY()
	TArray<FTestNeighbour> Others;

	UPROPERTY()
	TObjectPtr<UObject> Object;
};

/** Properties of all kinds. */
UCLASS(BlueprintType)
class UTestWall : public UObject
{
	GENERATED_BODY()

public:
	UTestWall();

	UPROPERTY(EditAnywhere, Category = "Numbers")
	int32 Number = 7;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	uint8 Byte = 1;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	int64 Large = 0;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	float Thickness = 0.25f;

	UPROPERTY(EditAnywhere, Category = "Numbers")
	double Length = 0.0;

	/** Whether it carries the floor above. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Wall", meta = (DisplayName = "Load bearing"))
	bool bLoadBearing = false;

	UPROPERTY(EditAnywhere, Category = "Wall")
	FName Label;

	UPROPERTY(EditAnywhere, Category = "Wall")
	FString Note;

	UPROPERTY(EditAnywhere, Category = "Wall")
	FText Title;

	UPROPERTY(EditAnywhere, Category = "Wall")
	FTestFinish Finish;

	UPROPERTY(EditAnywhere, Category = "Wall")
	FVector Position = FVector(0, 0, 0);

	UPROPERTY(EditAnywhere, Category = "Wall")
	FLinearColor Tint = FLinearColor(1.f, 0.f, 0.f);

	UPROPERTY(EditAnywhere, Category = "Wall")
	TArray<int32> Marks;

	UPROPERTY(EditAnywhere, Category = "Wall")
	TSet<FName> Tags;

	UPROPERTY(EditAnywhere, Category = "Wall")
	TMap<FName, FTestCoat> CoatsByRoom;

	UPROPERTY(Transient)
	int32 Visits = 0;

	UPROPERTY()
	TObjectPtr<UTestSkirting> Skirting;

	UPROPERTY()
	TObjectPtr<UObject> Other;

	UPROPERTY()
	TArray<TObjectPtr<UObject>> Others;

	UPROPERTY()
	TMap<FName, TObjectPtr<UObject>> OthersByName;

	UPROPERTY()
	FTestNeighbour Neighbour;

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY()
	TSoftObjectPtr<UTestWall> Soft;

	UPROPERTY()
	TSubclassOf<UTestWall> Kind;

	UPROPERTY()
	TObjectPtr<UTestDoor> Door;

	/** Not reflected. */
	TWeakObjectPtr<UObject> LastSeenInBeginDestroy;
	bool bBeginDestroyed = false;

	virtual void BeginDestroy() override;

	static int32 NumAlive;
	virtual ~UTestWall() override;

private:
	UPROPERTY()
	int32 Secret = 3;
};

/** A wall whose constructor changes what it inherits. */
UCLASS(meta = (DisplayName = "Outer Wall"))
class UTestOuterWall : public UTestWall
{
	GENERATED_BODY()

public:
	UTestOuterWall()
	{
		Thickness = 0.5f;
		Skirting->Height = 9;
	}

	UPROPERTY()
	float Insulation = 0.1f;
};

/** Keeps objects in a member that is not reflected. */
UCLASS()
class UTestKeeper : public UObject
{
	GENERATED_BODY()

public:
	UObject* Kept = nullptr;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};

UCLASS(Abstract)
class UTestAbstract : public UObject
{
	GENERATED_BODY()
};
