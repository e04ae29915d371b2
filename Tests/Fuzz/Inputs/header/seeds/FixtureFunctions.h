// Copyright Velmorant. All Rights Reserved.
// Functions with each kind of parameter and result.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "FixtureEnums.h"
#include "FixtureStructs.h"
#include "UObject/Object.h"
#include "Fuzz.generated.h"

DECLARE_DYNAMIC_DELEGATE_OneParam(FFixtureAnswer, const FString&, Answer);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FFixtureSomething);

UCLASS(Blueprintable)
class REFLECTIONFIXTURES_API UFixtureFunctions : public UObject
{
	GENERATED_BODY()

public:
	/** Adds up. */
	UFUNCTION(BlueprintPure, Category = "Fixture|Sums", meta = (DisplayName = "Sum"))
	static int32 Add(int32 A, int32 B = 2) { return A + B; }

	UFUNCTION(BlueprintCallable)
	FString Join(const FString& First, FString Second, FName Third = NAME_None) const;

	UFUNCTION(BlueprintCallable)
	bool Split(const FString& Text, FString& OutLeft, TArray<FString>& OutParts) const;

	UFUNCTION(BlueprintCallable)
	void Grow(UPARAM(ref) FFixturePoint& Point, int32 By);

	UFUNCTION(BlueprintCallable)
	static UFixtureFunctions* Same(UFixtureFunctions* Object, const UObject* Ignored, TSubclassOf<UObject> Class) { return Class && Ignored ? nullptr : Object; }

	UFUNCTION(BlueprintCallable)
	TMap<FName, FFixturePoint> Collect(const TArray<FFixturePoint>& Points, const TSet<FName>& Names);

	UFUNCTION(BlueprintCallable)
	EFixtureDoor Next(EFixtureDoor Door, EFixtureSpaced::Type Width, TEnumAsByte<EFixturePlain> Plain, int64 Step = 1LL, FVector2D Ignored = FVector2D(1.0, 2.0));

	UFUNCTION(BlueprintCallable)
	void Answer(const FFixtureAnswer& Receiver, FText InText);

	UFUNCTION(BlueprintCallable)
	virtual FString WhoAmI() const { return TEXT("base"); }

	UFUNCTION(CallInEditor)
	void Press() { ++NumPresses; }

	UFUNCTION(BlueprintCallable)
	const FString& GetJournal() const { return Journal; }

	UFUNCTION()
	void TakeJournal(const FString& Line) { Journal = Line; }

	// Not reflected, although it has the name of a reflected one.
	FString Join(int32 Number) const { return FString::FromInt(Number); }

	UPROPERTY(BlueprintReadOnly)
	int32 NumPresses = 0;

	UPROPERTY(BlueprintAssignable)
	FFixtureSomething OnSomething;

protected:
	UFUNCTION()
	void Guarded(int32 Value) { NumPresses = Value; }

private:
	UFUNCTION()
	void Hidden(bool bTwice) { NumPresses += bTwice ? 2 : 1; }

	FString Journal;
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureDerivedFunctions : public UFixtureFunctions
{
	GENERATED_BODY()

public:
	virtual FString WhoAmI() const override { return TEXT("derived"); }

	UFUNCTION(BlueprintCallable)
	int32 OnlyHere(int32 InValue) { return -InValue; }
};
