// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
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

	int32 NotReflected = 0;
	int32 NumHeard = 0;
	int32 NumChanges = 0; // by way of PostEditChangeProperty
	TArray<FString>* Diary = nullptr; // shared by several: who heard, in order

	UFUNCTION()
	void Hear(int32 Number);

	UFUNCTION()
	void HearOnce(int32 Number);

	UFUNCTION()
	void HearOption(FString Option, ESelectInfo::Type SelectInfo);

	void HearPlainly();

	//~ Begin UObject
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	//~ End UObject
};
