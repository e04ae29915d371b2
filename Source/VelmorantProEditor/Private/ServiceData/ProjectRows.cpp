// Copyright Velmorant. All Rights Reserved.

#include "ServiceData/ProjectRows.h"

#include "ConfiguratorWrapper.h"
#include "ProjectWrapper.h"
#include "UnitGroupWrapper.h"
#include "VelmorantConfiguratorTypes.h"

namespace ProjectRows
{
	TArray<FUnitData> GetTargetUnits(const UProjectWrapper& Project)
	{
		const UUnitGroupWrapper* Target = Project.GetUnitGroupTarget();
		return Target ? Target->GetUnitListData() : TArray<FUnitData>();
	}

	TArray<TConstArrayView<FVelmorantConfiguratorUnitGroup>> GetConfigurators(const UProjectWrapper& Project)
	{
		TArray<TConstArrayView<FVelmorantConfiguratorUnitGroup>> Configurators;
		for (const UConfiguratorWrapper* Configurator : Project.GetConfigurators())
		{
			Configurators.Add(Configurator->GetConfigtorUnitGroupCollection());
		}
		return Configurators;
	}
}

TArray<ProjectRows::FRow> ProjectRows::OfUnitGroups(TArray<FUnitGroupData> UnitGroups)
{
	TArray<FRow> Rows;
	Rows.Reserve(UnitGroups.Num());
	for (FUnitGroupData& UnitGroup : UnitGroups)
	{
		Rows.Add({NoUnit, MoveTemp(UnitGroup.KeyCode), MoveTemp(UnitGroup.Name)});
	}
	return Rows;
}

TArray<ProjectRows::FRow> ProjectRows::OfUnits(TArray<FUnitData> Units)
{
	Units.Sort([](const FUnitData& Left, const FUnitData& Right) { return Left.UnitID < Right.UnitID; });

	TArray<FRow> Rows;
	Rows.Reserve(Units.Num());
	for (FUnitData& Unit : Units)
	{
		Rows.Add({Unit.UnitID, MoveTemp(Unit.KeyCode), MoveTemp(Unit.Name)});
	}
	return Rows;
}

TArray<ProjectRows::FRow> ProjectRows::OfConfigurators(const TArray<TConstArrayView<FVelmorantConfiguratorUnitGroup>>& Configurators)
{
	TArray<FRow> Rows;
	for (const TConstArrayView<FVelmorantConfiguratorUnitGroup>& UnitGroups : Configurators)
	{
		for (const FVelmorantConfiguratorUnitGroup& UnitGroup : UnitGroups)
		{
			Rows.Add({NoUnit, UnitGroup.Key, UnitGroup.Name});
		}
	}
	return Rows;
}

TArray<ProjectRows::FRow> ProjectRows::OfProject(const UProjectWrapper* Project, EListDisplayItemType Level)
{
	if (!Project)
	{
		return {};
	}
	switch (Level)
	{
		case ELDIT_UnitGroup:
			return OfUnitGroups(Project->GetUnitGroupListData());
		case ELDIT_Unit:
			return OfUnits(GetTargetUnits(*Project));
		case ELDIT_Configurator:
			return OfConfigurators(GetConfigurators(*Project));
		default:
			return {};
	}
}

FVelmorantTextSearch ProjectRows::MakeSearch(TConstArrayView<TObjectPtr<UListDisplayerItemBase>> Items)
{
	FVelmorantTextSearch Search;
	Search.SetRows(Items.Num(), [&Items](int32 Row, FString& InOutText) {
		if (const UListDisplayerItemBase* Item = Items[Row])
		{
			InOutText += Item->Keycode;
			InOutText += Item->DisplayName;
		}
	});
	return Search;
}
