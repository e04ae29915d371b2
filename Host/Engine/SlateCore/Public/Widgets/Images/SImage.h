// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/SlateBrush.h"
#include "Widgets/SLeafWidget.h"

class SLATECORE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage)
		: _ColorAndOpacity(FSlateColor(FLinearColor::White))
		{
		}
		SLATE_ATTRIBUTE(const FSlateBrush*, Image)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(TOptional<FVector2D>, DesiredSizeOverride)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetImage(TAttribute<const FSlateBrush*> InImage) { Image = MoveTemp(InImage); }
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InColorAndOpacity) { ColorAndOpacity = InColorAndOpacity; }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;

private:
	TAttribute<const FSlateBrush*> Image;
	TAttribute<FSlateColor> ColorAndOpacity;
	TAttribute<TOptional<FVector2D>> DesiredSizeOverride;
};
