// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "UObject/Object.h"
#include "VelmorantColorHandler.h"
#include "FontIconHandler.generated.h"

/** An icon of an icon font: which font, which of its styles, which icon, in what colour. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FFontIconHandler
{
	GENERATED_BODY()

	FFontIconHandler() = default;

	FFontIconHandler(FName InFontIconName, FName InIconStyle, FName InIconName)
		: FontIconName(InFontIconName)
		, IconStyle(InIconStyle)
		, IconName(InIconName)
	{
	}

	/**
	 * The font that draws the icon: the icon font's object, with the style as its typeface.
	 * An unknown font, or one without a font object, gives the app's normal font at that size.
	 * @param Size in points.
	 */
	FSlateFontInfo GenerateFontSlate(float Size) const;

	/** The icon font's ID. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Icon")
	FName FontIconName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Icon")
	FName IconStyle;

	/** The icon's row in the font's icon table. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Icon")
	FName IconName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velmorant|Icon")
	FVelmorantColorHandler IconColor;
};
