// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Components/TextBlock.h"
#include "VelmorantColorHandler.h"
#include "VlmText.generated.h"

/**
 * The toolkit's text: its font and colour come from the project's style configuration by name. Without a name they are those of any text; a font style that the
 * configuration does not have is the app's normal font, a colour that it does not have is magenta.
 */
UCLASS()
class VELMORANTPROUI_API UVlmText : public UTextBlock
{
	GENERATED_BODY()

public:
	/** @param InFontStyle a style of the toolkit's UI configuration, such as "small". */
	UFUNCTION(BlueprintCallable, Category = "Velmorant|Text")
	void SetFontStyle(FName InFontStyle);

	UFUNCTION(BlueprintPure, Category = "Velmorant|Text")
	FName GetFontStyle() const { return FontStyle; }

	UFUNCTION(BlueprintCallable, Category = "Velmorant|Text")
	void SetColorHandler(const FVelmorantColorHandler& InColorHandler);

	UFUNCTION(BlueprintPure, Category = "Velmorant|Text")
	FVelmorantColorHandler GetColorHandler() const { return ColorHandler; }

protected:
	//~ Begin UWidget
	virtual TSharedRef<SWidget> RebuildWidget() override;
	//~ End UWidget

private:
	/** Looks both up and shows them. */
	void ApplyStyle();

	UPROPERTY(EditAnywhere, Category = "Velmorant|Text")
	FName FontStyle;

	UPROPERTY(EditAnywhere, Category = "Velmorant|Text")
	FVelmorantColorHandler ColorHandler;
};
