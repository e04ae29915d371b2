// Copyright Velmorant. All Rights Reserved.
// Value types of a wall finish: enums of all forms, and structs that hold each other.

#pragma once

#include "Containers/EnumAsByte.h"
#include "CoreMinimal.h"
#include "TestFinish.generated.h"

/** How a finish feels. */
UENUM(BlueprintType)
enum class ETestGloss : uint8
{
	Matt,
	SemiGloss UMETA(DisplayName = "Semi-gloss", ToolTip = "Easy to clean"),
	HighGloss = 10
};

UENUM(BlueprintType)
enum ETestCoat : int
{
	TC_Primer,
	TC_Colour,
	TC_Varnish
};

UENUM()
namespace ETestSurface
{
	enum Type : int
	{
		Wall,
		Ceiling
	};
}

/** One coat of paint. */
USTRUCT(BlueprintType)
struct FTestCoat
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Coat")
	FName Pigment;

	UPROPERTY(EditAnywhere, Category = "Coat")
	TEnumAsByte<ETestCoat> Kind = TC_Primer;
};

/** A finish: coats over a surface. */
USTRUCT(BlueprintType)
struct FTestFinish
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Finish")
	FName Name;

	UPROPERTY(EditAnywhere, Category = "Finish")
	ETestGloss Gloss = ETestGloss::Matt;

	UPROPERTY(EditAnywhere, Category = "Finish")
	TEnumAsByte<ETestSurface::Type> Surface = ETestSurface::Wall;

	UPROPERTY(EditAnywhere, Category = "Finish")
	bool bWashable = false;

	UPROPERTY(EditAnywhere, Category = "Finish")
	TArray<FTestCoat> Coats;

	UPROPERTY(EditAnywhere, Category = "Finish")
	FString HelpMessage;
};
