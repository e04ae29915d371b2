// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Types/SlateEnums.h"
#include "UObject/Object.h"
#include "TestListener.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FVelmorantTestSignal, int32, Number);

UENUM()
enum class EVelmorantTestKind : uint8
{
	Plain,
	Special
};

/** What the tests customize in a details panel. */
USTRUCT()
struct FVelmorantTestChoice
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Test")
	FName Name;

	UPROPERTY(EditAnywhere, Category = "Test")
	EVelmorantTestKind Kind = EVelmorantTestKind::Plain;

	UPROPERTY(EditAnywhere, Category = "Test")
	FLinearColor Tint = FLinearColor::White;
};

/** A row of other tables than those that are looked at. */
USTRUCT()
struct FVelmorantTestRow : public FTableRowBase
{
	GENERATED_BODY()
};

/** A struct below one that is customized. */
USTRUCT()
struct FVelmorantTestSpecialChoice : public FVelmorantTestChoice
{
	GENERATED_BODY()
};

/** Objects of the tests: they hear of things, and have a few properties to edit and undo. */
UCLASS()
class UVelmorantTestListener : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FVelmorantTestSignal Signal;

	UPROPERTY(EditAnywhere, Category = "Test")
	FName Label;

	UPROPERTY(EditAnywhere, Category = "Test")
	int32 Amount = 0;

	UPROPERTY(EditAnywhere, Category = "Test")
	FVelmorantTestChoice Choice;

	UPROPERTY(EditAnywhere, Category = "Test")
	FVelmorantTestSpecialChoice SpecialChoice;

	UPROPERTY(EditAnywhere, Category = "Test")
	TArray<int32> Numbers;

	UPROPERTY(EditAnywhere, Category = "Test")
	TMap<FName, int32> Counts;

	UPROPERTY(EditAnywhere, Category = "Test")
	TSet<FName> Tags;

	UPROPERTY()
	TObjectPtr<UObject> Friend;

	int32 NotReflected = 0;
	int32 NumHeard = 0;
	int32 NumChanges = 0; // by way of PostEditChangeProperty
	int32 NumUndone = 0; // undone or redone
	TArray<FString>* Diary = nullptr; // shared by several: who heard, in order

	UFUNCTION()
	void Hear(int32 Number);

	UFUNCTION()
	void HearOnce(int32 Number);

	/** Takes the friend from the signal of the object's outer, if it is there by this function. */
	UFUNCTION()
	void HearAndSilence(int32 Number);

	UFUNCTION()
	void HearOption(FString Option, ESelectInfo::Type SelectInfo);

	void HearPlainly();

	void HearClick(UObject* Item);

	/** Can be undone, and has a choice of that name. */
	static UVelmorantTestListener* Make(const TCHAR* ChoiceName);

	//~ Begin UObject
	virtual void PostEditUndo() override;
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	//~ End UObject
};
