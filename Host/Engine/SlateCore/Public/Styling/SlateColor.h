// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "SlateColor.generated.h"

/** A colour for a widget: a given one, or the foreground colour of whatever the widget stands in. */
USTRUCT(BlueprintType)
struct SLATECORE_API FSlateColor
{
	GENERATED_BODY()

	/** Default: magenta, as a sign that nobody set it. */
	FSlateColor() = default;
	FSlateColor(const FLinearColor& InColor)
		: SpecifiedColor(InColor)
		, bSpecified(true)
	{
	}
	FSlateColor(const FColor& InColor)
		: SpecifiedColor(InColor)
		, bSpecified(true)
	{
	}

	/** The given colour; only meaningful while IsColorSpecified(). */
	FLinearColor GetSpecifiedColor() const { return SpecifiedColor; }
	bool IsColorSpecified() const { return bSpecified; }

	static FSlateColor UseForeground()
	{
		FSlateColor Result;
		Result.bSpecified = false;
		return Result;
	}

	bool operator==(const FSlateColor& Other) const { return SpecifiedColor == Other.SpecifiedColor && bSpecified == Other.bSpecified; }

private:
	UPROPERTY(EditAnywhere, Category = "Color")
	FLinearColor SpecifiedColor = FLinearColor(1.0f, 0.0f, 1.0f);

	UPROPERTY()
	bool bSpecified = true;
};
