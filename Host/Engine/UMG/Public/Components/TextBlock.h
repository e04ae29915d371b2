// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateColor.h"

#include "TextBlock.generated.h"

/** Shows a text. */
UCLASS()
class UMG_API UTextBlock : public UWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Widget")
	FText GetText() const { return Text; }

	UFUNCTION(BlueprintCallable, Category = "Widget")
	virtual void SetText(FText InText);

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetFont(FSlateFontInfo InFontInfo);

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetColorAndOpacity(FSlateColor InColorAndOpacity);

	/** Breaks lines that the text's place is too narrow for. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	void SetAutoWrapText(bool InAutoTextWrap);

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

private:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FSlateColor ColorAndOpacity = FLinearColor::White;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FSlateFontInfo Font;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Wrapping", meta = (AllowPrivateAccess = "true"))
	bool AutoWrapText = false;
};
