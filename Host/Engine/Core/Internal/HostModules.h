// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Templates/Function.h"
#include "UObject/NameTypes.h"

/** Taking down the modules of an editor. */
namespace HostModules
{
	/** Names of the modules that are loaded, in the order in which their start was complete: dependencies first. */
	TArray<FName> GetLoaded();

	/** Called with the name of every module that is about to start, in all editors, until it is replaced. */
	void SetLoadListener(TFunction<void(FName)> Listener);

	/**
	 * Calls ShutdownModule: first of those named, in this order, while all others are still loaded and more can be; then of the rest, the
	 * last loaded first. Module objects stay until DestroyModules(); no module counts as loaded afterwards.
	 */
	void ShutDownModules(const TArray<FName>& First);

	/** Destroys all module objects, the last loaded first. To be called after objects, delegates and registries have gone. */
	void DestroyModules();
}
