// Copyright Velmorant. All Rights Reserved.

#pragma once

class ULevelVariantSets;
class UVelmorantConfiguratorDataAsset;

/** Level variant sets out of configurator data: a variant set per room and group, a variant per product. */
namespace LevelVariantGeneration
{
	/** Adopts, finds or makes the asset's level variant sets, and adds what they miss. */
	void CreateOrUpdate(UVelmorantConfiguratorDataAsset* ConfiguratorData);

	/**
	 * Adds what the level variant sets miss of the configurator; nothing is removed or reordered.
	 * @return false, with a notification, when LevelVariantSets is null
	 */
	bool FillOut(UVelmorantConfiguratorDataAsset* ConfiguratorData, ULevelVariantSets* LevelVariantSets);
}
