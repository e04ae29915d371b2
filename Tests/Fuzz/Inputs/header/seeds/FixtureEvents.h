// Copyright Velmorant. All Rights Reserved.
// Events: their bodies are generated, scripts of derived classes may take their place.

#pragma once

#include "CoreMinimal.h"
#include "FixtureStructs.h"
#include "UObject/Object.h"
#include "Fuzz.generated.h"

UCLASS(Abstract, Blueprintable)
class REFLECTIONFIXTURES_API UFixtureEvents : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintImplementableEvent)
	void OnShown();

	UFUNCTION(BlueprintImplementableEvent, BlueprintCallable)
	int32 Judge(const FString& Text, FFixturePoint Point, UObject* Who) const;

	UFUNCTION(BlueprintImplementableEvent)
	void Fill(FString& OutText, TArray<int32>& Numbers);

	/** Its native body is declared here. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable)
	FString Greet(const FString& Whom, int32 Times = 1);
	virtual FString Greet_Implementation(const FString& Whom, int32 Times);

	// Its native body is declared by the generated code.
	UFUNCTION(BlueprintNativeEvent)
	bool IsReady(FFixturePoint& OutWhere) const;

protected:
	UFUNCTION(BlueprintNativeEvent)
	void Count();

public:
	int32 NumCounted = 0;
	void CountTwice()
	{
		Count();
		Count();
	}
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureDerivedEvents : public UFixtureEvents
{
	GENERATED_BODY()

public:
	virtual FString Greet_Implementation(const FString& Whom, int32 Times) override;
};
