// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class ISlateStyle;

/** The style sets that icons and menus look their brushes up in, by name. Does not own them. */
class SLATECORE_API FSlateStyleRegistry
{
public:
	/** A name that is taken is reported once (ensure) and replaced. */
	static void RegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const ISlateStyle& InSlateStyle);
	static void UnRegisterSlateStyle(const FName StyleName);

	/** Null when no set of that name is registered. */
	static const ISlateStyle* FindSlateStyle(const FName& InSlateStyleName);
};
