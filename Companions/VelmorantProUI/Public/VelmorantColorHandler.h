// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantColorHandler.generated.h"

/** Where a colour comes from. Value 2 is the free colour; every other value names a palette colour. */
UENUM(BlueprintType)
enum class EVelmorantColorMode : uint8
{
	Simple = 0,
	Style = 1,
	Custom = 2
};

/** A colour by its name in the toolkit's palette, or a free one. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FVelmorantColorHandler
{
	GENERATED_BODY()

	FVelmorantColorHandler() = default;

	/** A palette colour. */
	explicit FVelmorantColorHandler(FName InColorID)
		: ColorID(InColorID)
	{
	}

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	EVelmorantColorMode ColorMode = EVelmorantColorMode::Style;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	FName ColorID;

	/** Take the palette's contrast variant of the colour. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	bool bUseContrast = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	FLinearColor ColorCustom = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	bool bOverrideOpacity = false;

	/** 0 (transparent) to 1 (opaque); used when bOverrideOpacity is set. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Color")
	float OpacityOverride = 1.0f;
};
