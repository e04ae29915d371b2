// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "EditorWidgets/ListDisplayerItemBase.h"
#include "Search/VelmorantTextSearch.h"
#include "VelmorantSDKTypes.h"

class UProjectWrapper;
struct FVelmorantConfiguratorUnitGroup;

/** Which rows a list of a project's data shows. */
namespace ProjectRows
{
	inline constexpr int32 NoUnit = -1;

	struct FRow
	{
		int32 UnitID = NoUnit; // of units only
		FString Keycode;
		FString DisplayName;
	};

	/** In the service's order. */
	TArray<FRow> OfUnitGroups(TArray<FUnitGroupData> UnitGroups);

	/** By number; units of equal numbers in any order. */
	TArray<FRow> OfUnits(TArray<FUnitData> Units);

	/** The unit groups that each configurator applies to, configurator by configurator, in the service's order. */
	TArray<FRow> OfConfigurators(const TArray<TConstArrayView<FVelmorantConfiguratorUnitGroup>>& Configurators);

	/** The rows of a level: unit groups, the target unit group's units, or configurators. None without project or target. */
	TArray<FRow> OfProject(const UProjectWrapper* Project, EListDisplayItemType Level);

	/** Items are found by their key code and name, read as one word. Of those that are missing nothing is found. */
	FVelmorantTextSearch MakeSearch(TConstArrayView<TObjectPtr<UListDisplayerItemBase>> Items);
}
