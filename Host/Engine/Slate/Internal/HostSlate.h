// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** The life of the user interface within one running editor. */
namespace HostSlate
{
	/** Brings the user interface up; before that, FSlateApplication::IsInitialized() is false and notifications are not shown. */
	void Start();

	/** Takes it down: standing notifications go away without being expired, registered command sets are dropped. */
	void Stop();

	/** How often the renderer loaded its textures again; one that draws nothing has none. */
	int32 GetTextureReloads();
}
