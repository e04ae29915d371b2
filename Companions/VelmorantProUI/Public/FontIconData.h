// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Engine/DataTable.h"
#include "Engine/Font.h"
#include "FontIconData.generated.h"

/** One icon of an icon font; the row's name is the icon's name. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FFontIconRow : public FTableRowBase
{
	GENERATED_BODY()

	/** What people call the icon. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	FString Label;

	/** The glyph as text: one character, as a surrogate pair where it lies beyond U+FFFF. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	FString Character;

	/** The styles in which the icon is drawn. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	TArray<FName> IconStyles;

	/** Further words and phrases under which the icon is found. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	TSet<FString> SearchTags;
};

/** An icon font: its icons, and the font that draws them. */
USTRUCT(BlueprintType)
struct VELMORANTPROUI_API FFontIconData
{
	GENERATED_BODY()

	/** None for the data of an unknown font. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	FName FontID;

	/** Rows of FFontIconRow. Null when the font is unknown or its table cannot be loaded. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	TObjectPtr<UDataTable> IconDataTable;

	/** One typeface per style, under the style's name. Null draws with the app's own font. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Velmorant|Icon")
	TObjectPtr<UFont> Font;
};
