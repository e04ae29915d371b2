// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Widgets/SWidget.h"

/** A widget without children. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override { return &FNoChildren::NoChildrenInstance; }
};
