// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** Categories of the menu of new assets, as bits of a mask. The bits from FirstUser on are handed out at run time. */
namespace EAssetTypeCategories
{
	enum Type : uint32
	{
		None = 0,
		Basic = 1 << 0,
		Animation = 1 << 1,
		Materials = 1 << 2,
		Sounds = 1 << 3,
		Physics = 1 << 4,
		UI = 1 << 5,
		Misc = 1 << 6,
		Gameplay = 1 << 7,
		Blueprint = 1 << 8,
		Media = 1 << 9,
		Textures = 1 << 10,
		World = 1 << 11,
		FX = 1 << 12,
		FirstUser = 1 << 13,
		LastUser = 1u << 31,
	};
}
