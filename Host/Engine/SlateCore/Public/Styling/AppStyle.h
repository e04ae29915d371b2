// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Styling/ISlateStyle.h"

/** The style of the editor itself: its icons, fonts and colours. */
class SLATECORE_API FAppStyle
{
public:
	static const ISlateStyle& Get();
	static const FName GetAppStyleSetName();

	/** Unknown names give the default brush, never null. */
	static const FSlateBrush* GetBrush(FName PropertyName, const ANSICHAR* Specifier = nullptr);
	static FSlateFontInfo GetFontStyle(FName PropertyName, const ANSICHAR* Specifier = nullptr);
};
