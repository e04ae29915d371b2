// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataAsset.h"
#include "Engine/Font.h"
#include "UObject/SoftObjectPtr.h"
#include "VelmorantUIStyleConfiguration.generated.h"

/** A named colour of the palette, with its variant for use on a dark or busy ground. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FVelmorantPaletteColor
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FName ID;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FLinearColor Color = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FLinearColor ContrastColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
};

/** A font by what it is for. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FVelmorantFontStyle
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FName ID;

	/** None: the app's normal font. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	TSoftObjectPtr<UFont> Font;

	/** A typeface of the font; None for its usual one. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FName Typeface;

	/** In points. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	float Size = 9.0f;
};

/** The look of a model's user interface: its palette, in two families of colours, and its font styles. */
UCLASS(BlueprintType)
class VELMORANTPROUI_API UVelmorantUIStyleConfiguration : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Shown in style pickers. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	FText DisplayName;

	/** Plain colours, such as "White"; in the order in which lists offer them. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	TArray<FVelmorantPaletteColor> SimpleColors;

	/** Colours by what they are for, such as "Accent"; in the order in which lists offer them. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	TArray<FVelmorantPaletteColor> StyleColors;

	/** Fonts by what they are for, such as "title". */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Style")
	TArray<FVelmorantFontStyle> FontStyles;

	/** Null when there is none of that ID. */
	const FVelmorantFontStyle* FindFontStyle(FName ID) const;

	/** The colour of that ID, looked for among the simple colours first; null when there is none. */
	const FVelmorantPaletteColor* FindColor(FName ID) const;
};
