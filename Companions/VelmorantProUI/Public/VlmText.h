// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Components/TextBlock.h"
#include "VelmorantColorHandler.h"
#include "VlmText.generated.h"

/** The toolkit's text: its font and colour come from the style by name. */
UCLASS()
class VELMORANTPROUI_API UVlmText : public UTextBlock
{
	GENERATED_BODY()

public:
	/** @param InFontStyle a style of the toolkit's UI configuration, such as "small". */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Text")
	void SetFontStyle(FName InFontStyle) { FontStyle = InFontStyle; }

	UFUNCTION(BlueprintPure, Category = "Velmorant|Text")
	FName GetFontStyle() const { return FontStyle; }

	UFUNCTION(BlueprintCallable, Category = "Velmorant|Text")
	void SetColorHandler(const FVelmorantColorHandler& InColorHandler) { ColorHandler = InColorHandler; }

	UFUNCTION(BlueprintPure, Category = "Velmorant|Text")
	FVelmorantColorHandler GetColorHandler() const { return ColorHandler; }

private:
	UPROPERTY(EditAnywhere, Category = "Velmorant|Text")
	FName FontStyle;

	UPROPERTY(EditAnywhere, Category = "Velmorant|Text")
	FVelmorantColorHandler ColorHandler;
};
