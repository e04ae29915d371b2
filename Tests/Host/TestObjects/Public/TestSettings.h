// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "TestFinish.h"
#include "UObject/Object.h"
#include "TestSettings.generated.h"

/** Settings in the project's and the user's files. */
UCLASS(Config = TestHouse, DefaultConfig)
class UTestSettings : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(Config, EditAnywhere, Category = "House")
	FString Owner = TEXT("nobody");

	UPROPERTY(Config, EditAnywhere, Category = "House")
	int32 Floors = 1;

	UPROPERTY(Config, EditAnywhere, Category = "House")
	ETestGloss Gloss = ETestGloss::Matt;

	UPROPERTY(Config, EditAnywhere, Category = "House")
	TArray<FTestFinish> Finishes;

	/** Not saved. */
	UPROPERTY(EditAnywhere, Category = "House")
	int32 Draft = 0;
};

/** Inherits settings and has one of its own. */
UCLASS()
class UTestTowerSettings : public UTestSettings
{
	GENERATED_BODY()

public:
	UPROPERTY(Config)
	bool bLift = false;
};
