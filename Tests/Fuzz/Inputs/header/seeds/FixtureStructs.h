// Copyright Velmorant. All Rights Reserved.
// Structs: several in a header, derived ones, private members, parts that are not reflected.

#pragma once

#include "CoreMinimal.h"
#include "FixtureEnums.h"
#include "UObject/Object.h"
#include "Fuzz.generated.h"

USTRUCT(BlueprintType)
struct REFLECTIONFIXTURES_API FFixturePoint
{
	GENERATED_BODY()

	FFixturePoint() = default;
	FFixturePoint(int32 InX, int32 InY)
		: X(InX)
		, Y{InY}
	{
	}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Place")
	int32 X = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Place")
	int32 Y{2};

	bool operator==(const FFixturePoint& Other) const { return X == Other.X && Y == Other.Y; }
	friend uint32 GetTypeHash(const FFixturePoint& Point) { return static_cast<uint32>(Point.X * 31 + Point.Y); }
};

USTRUCT(BlueprintType)
struct FFixtureLabelledPoint : public FFixturePoint
{
	GENERATED_BODY()

	/** Shown beside the point. */
	UPROPERTY(BlueprintReadOnly)
	FString Label = TEXT("a {label}, with (brackets");

	const FString& GetSecret() const { return Secret; }

private:
	UPROPERTY(meta = (AllowPrivateAccess = "true"))
	FString Secret = TEXT("hidden");

	struct FNotReflected
	{
		int32 Value = 0;
	};
	FNotReflected Inner;
};
