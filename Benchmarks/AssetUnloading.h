// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostObjects.h"
#include "UObject/Object.h"

/** Takes a saved asset out of memory, so that the next one who asks reads its file. */
inline void UnloadAsset(UObject& Asset)
{
	Asset.ClearFlags(RF_Public | RF_Standalone);
	HostObjects::CollectGarbage();
}
