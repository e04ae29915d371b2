// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "Margin.generated.h"

/** Room around a widget, in Slate units. */
USTRUCT(BlueprintType)
struct SLATECORE_API FMargin
{
	GENERATED_BODY()

	FMargin() = default;
	FMargin(float Uniform)
		: Left(Uniform)
		, Top(Uniform)
		, Right(Uniform)
		, Bottom(Uniform)
	{
	}
	FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{
	}
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Left = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Top = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Right = 0.0f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	float Bottom = 0.0f;
};
