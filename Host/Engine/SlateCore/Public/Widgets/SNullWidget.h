// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class SWidget;

/** The widget that stands where there is none: no size, nothing to see. */
class SLATECORE_API SNullWidget
{
public:
	static TSharedRef<SWidget> NullWidget;
};
