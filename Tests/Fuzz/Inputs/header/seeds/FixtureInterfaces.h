// Copyright Velmorant. All Rights Reserved.
// Interfaces and classes that implement them.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/Object.h"
#include "Fuzz.generated.h"

UINTERFACE(Blueprintable, MinimalAPI)
class UFixtureGreeter : public UInterface
{
	GENERATED_BODY()
};

/** Says something to somebody. */
class REFLECTIONFIXTURES_API IFixtureGreeter
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Greeter")
	FString Greet(const FString& Whom, int32& OutLength);

	UFUNCTION(BlueprintNativeEvent)
	int32 GetAge() const;
	virtual int32 GetAge_Implementation() const { return 30; }

	UFUNCTION(BlueprintImplementableEvent)
	void Wave(UObject* Target);

	virtual int32 NotReflected() const { return 5; }
};

UINTERFACE()
class UFixturePoliteGreeter : public UFixtureGreeter
{
	GENERATED_BODY()
};

class REFLECTIONFIXTURES_API IFixturePoliteGreeter : public IFixtureGreeter
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintNativeEvent)
	void Bow();
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureGreeterObject : public UObject, public IFixtureGreeter
{
	GENERATED_BODY()

public:
	//~ Begin IFixtureGreeter
	virtual FString Greet_Implementation(const FString& Whom, int32& OutLength) override;
	//~ End IFixtureGreeter
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureDerivedGreeterObject : public UFixtureGreeterObject
{
	GENERATED_BODY()

public:
	virtual int32 GetAge_Implementation() const override { return 31; }
};

UCLASS()
class REFLECTIONFIXTURES_API UFixturePoliteObject : public UObject, public IFixturePoliteGreeter
{
	GENERATED_BODY()

public:
	virtual void Bow_Implementation() override { ++NumBows; }

	int32 NumBows = 0;
};

/** Implements nothing: to be told apart from those above. */
UCLASS()
class REFLECTIONFIXTURES_API UFixtureSilentObject : public UObject
{
	GENERATED_BODY()
};
