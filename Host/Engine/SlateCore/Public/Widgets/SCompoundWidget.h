// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/SWidget.h"

/** A widget made of others: one child, which its Construct() puts into ChildSlot. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;

	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;
};
