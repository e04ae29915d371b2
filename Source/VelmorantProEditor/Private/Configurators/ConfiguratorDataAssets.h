// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UVelmorantConfiguratorDataAsset;

/** The assets that hold a configurator's data as the service knew it. Every outcome is told in a notification. */
namespace ConfiguratorDataAssets
{
	/** Makes the asset of a configurator of the selected project, unless it is there already. */
	void Create(const FName& ConfiguratorID);

	/**
	 * "Update LevelVariantSet Data": asks the service for the configurator anew. When the answer comes, the asset takes the record
	 * over, and its level variant sets, if they are loaded, get what they miss of it.
	 * @return whether the request was sent
	 */
	bool Update(UVelmorantConfiguratorDataAsset* ConfiguratorData);
}
