// Copyright Velmorant. All Rights Reserved.

#pragma once

class UVelmorantConfiguratorDataAsset;

/** The level's actor that switches the variants of a configurator. */
namespace LevelVariantActor
{
	/** Finds or spawns the actor of the open level, gives it the configurator, and shows it to the designer. */
	void PlaceInLevel(UVelmorantConfiguratorDataAsset* ConfiguratorData);
}
