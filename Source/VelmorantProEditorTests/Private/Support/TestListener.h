// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "TestListener.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FVelmorantTestSignal, int32, Number);

/** Objects of the tests: they hear of things, and have a few properties to edit and undo. */
UCLASS(Transient)
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
	FLinearColor Tint = FLinearColor::White;

	int32 NotReflected = 0;
	int32 NumHeard = 0;
	int32 NumChanges = 0; // by way of PostEditChangeProperty
	TArray<FString>* Diary = nullptr; // shared by several: who heard, in order

	UFUNCTION()
	void Hear(int32 Number);

	UFUNCTION()
	void HearOnce(int32 Number);

	void HearPlainly();

	//~ Begin UObject
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	//~ End UObject
};
