// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Types/SlateStructs.h"
#include "Widgets/SCompoundWidget.h"

/** Gives its child a size or an alignment. */
class SLATE_API SBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
	void SetWidthOverride(TAttribute<FOptionalSize> InValue) { WidthOverride = MoveTemp(InValue); }
	void SetHeightOverride(TAttribute<FOptionalSize> InValue) { HeightOverride = MoveTemp(InValue); }
	void SetMinDesiredWidth(TAttribute<FOptionalSize> InValue) { MinDesiredWidth = MoveTemp(InValue); }
	void SetMinDesiredHeight(TAttribute<FOptionalSize> InValue) { MinDesiredHeight = MoveTemp(InValue); }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
	virtual void DescribeLookToHost(FHostWidgetLook& OutLook) const override;

private:
	TAttribute<FOptionalSize> WidthOverride;
	TAttribute<FOptionalSize> HeightOverride;
	TAttribute<FOptionalSize> MinDesiredWidth;
	TAttribute<FOptionalSize> MinDesiredHeight;
	TAttribute<FOptionalSize> MaxDesiredWidth;
	TAttribute<FOptionalSize> MaxDesiredHeight;
};
