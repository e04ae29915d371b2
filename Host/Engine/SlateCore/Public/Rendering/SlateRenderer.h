// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Draws widgets. Host: there is nothing to draw; requests are only passed on. */
class SLATECORE_API FSlateRenderer
{
public:
	virtual ~FSlateRenderer() = default;

	/** Loads the images of all style sets again from their files. */
	virtual void ReloadTextureResources() {}
};
