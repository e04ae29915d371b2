// Copyright Velmorant. All Rights Reserved.
// Each way to declare constructors, or not to.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "FixtureConstruction.generated.h"

UCLASS()
class REFLECTIONFIXTURES_API UFixtureDefaultConstructed : public UObject
{
	GENERATED_BODY()

public:
	UFixtureDefaultConstructed()
		: Value(1)
	{
	}

	UPROPERTY()
	int32 Value;
};

/** Declares none; the class above has only the one without arguments. */
UCLASS()
class REFLECTIONFIXTURES_API UFixtureBelowDefault : public UFixtureDefaultConstructed
{
	GENERATED_BODY()
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureInitialized : public UObject
{
	GENERATED_BODY()

public:
	explicit UFixtureInitialized(const FObjectInitializer& ObjectInitializer);
	virtual ~UFixtureInitialized() override;

	UPROPERTY()
	int32 Value = 0;
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureBelowInitialized : public UFixtureInitialized
{
	GENERATED_BODY()
};

UCLASS()
class REFLECTIONFIXTURES_API UFixtureLegacyBody : public UObject
{
	GENERATED_UCLASS_BODY()

	UPROPERTY()
	int32 Value;
};

UCLASS()
class UFixturePrivatelyConstructed : public UObject
{
	GENERATED_BODY()

	UFixturePrivatelyConstructed() = default;

	UPROPERTY()
	int32 Value = 4;
};
