// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

class UAssetDefinition;
class UClass;

/** The asset definitions of the loaded modules. */
namespace HostAssetDefinitions
{
	/** The default objects of all asset definition classes that are not abstract, ordered by class path. */
	TArray<const UAssetDefinition*> GetAll();

	/** The definition of exactly this class; null without one. */
	const UAssetDefinition* FindExact(const UClass* AssetClass);
}
