// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/SLeafWidget.h"

/** Moves while something is going on. */
class SLATE_API SThrobber : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SThrobber)
		: _NumPieces(3)
		{
		}
		SLATE_ARGUMENT(int32, NumPieces)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
};
