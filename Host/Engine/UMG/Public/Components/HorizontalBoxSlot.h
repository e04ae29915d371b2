// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"

#include "HorizontalBoxSlot.generated.h"

/** One place in a row. */
UCLASS()
class UMG_API UHorizontalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Horizontal Box Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Horizontal Box Slot")
	FSlateChildSize Size = FSlateChildSize(ESlateSizeRule::Automatic);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Horizontal Box Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Horizontal Box Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;
};
