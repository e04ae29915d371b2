// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/ISlateStyle.h"

/** The style that exists before any other. */
class SLATECORE_API FCoreStyle
{
public:
	static const ISlateStyle& Get();
};
