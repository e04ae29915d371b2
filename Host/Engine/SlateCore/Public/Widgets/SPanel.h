// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/SWidget.h"

/** A widget that lays out many children. */
class SLATECORE_API SPanel : public SWidget
{
protected:
	virtual void DescribeToHost(FHostWidgetDescription& OutDescription) const override;
};
