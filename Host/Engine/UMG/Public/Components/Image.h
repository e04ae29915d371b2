// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/Widget.h"
#include "Styling/SlateBrush.h"

#include "Image.generated.h"

class UTexture2D;

UCLASS()
class UMG_API UImage : public UWidget
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	virtual void SetColorAndOpacity(FLinearColor InColorAndOpacity);
	const FLinearColor& GetColorAndOpacity() const { return ColorAndOpacity; }

	virtual void SetBrush(const FSlateBrush& InBrush);
	const FSlateBrush& GetBrush() const { return Brush; }

	virtual void SynchronizeProperties() override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

private:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor ColorAndOpacity = FLinearColor::White;

	FSlateBrush Brush;
};
