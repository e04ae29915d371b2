// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Fonts/SlateFontInfo.h"

struct FSlateBrush;

/** What a style gives for a key that it does not have. */
class SLATECORE_API FStyleDefaults
{
public:
	/** Draws nothing; never null. */
	static const FSlateBrush* GetNoBrush();
	static FSlateFontInfo GetFontInfo() { return FSlateFontInfo(); }
};
