// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "WidgetTransform.generated.h"

/** How a widget is moved, scaled, sheared and turned after it was laid out. */
USTRUCT(BlueprintType)
struct UMG_API FWidgetTransform
{
	GENERATED_BODY()

	FWidgetTransform()
		: Translation(0.0, 0.0)
		, Scale(1.0, 1.0)
		, Shear(0.0, 0.0)
		, Angle(0.0f)
	{
	}
	FWidgetTransform(const FVector2D& InTranslation, const FVector2D& InScale, const FVector2D& InShear, float InAngle)
		: Translation(InTranslation)
		, Scale(InScale)
		, Shear(InShear)
		, Angle(InAngle)
	{
	}

	bool IsIdentity() const { return *this == FWidgetTransform(); }

	bool operator==(const FWidgetTransform& Other) const
	{
		return Scale == Other.Scale && Shear == Other.Shear && Angle == Other.Angle && Translation == Other.Translation;
	}
	bool operator!=(const FWidgetTransform& Other) const { return !(*this == Other); }

	/** In Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Translation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Scale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	FVector2D Shear;

	/** In degrees, clockwise. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Transform")
	float Angle;
};
