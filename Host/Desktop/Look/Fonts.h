// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Fonts/SlateFontInfo.h"

/** The editor's fonts as Qt has them. */
namespace Fonts
{
	/** A font without object and typeface is the window's own. Sizes are in points of 1/72 inch at 96 dots an inch, whatever the screen has. */
	QFont ToQt(const FSlateFontInfo& Font);

	/** The window's own, which everything has that asks for no other. */
	QFont GetStandard();
}
