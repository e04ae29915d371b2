// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"

#include "VerticalBoxSlot.generated.h"

/** One place in a column. */
UCLASS()
class UMG_API UVerticalBoxSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Vertical Box Slot")
	FMargin Padding;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Vertical Box Slot")
	FSlateChildSize Size = FSlateChildSize(ESlateSizeRule::Automatic);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Vertical Box Slot")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Layout|Vertical Box Slot")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;
};
