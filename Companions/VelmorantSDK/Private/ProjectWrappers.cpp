// Copyright Velmorant. All Rights Reserved.

#include "ConfiguratorWrapper.h"
#include "ProjectWrapper.h"
#include "UnitGroupWrapper.h"
#include "VelmorantProjectRequestManager.h"

TArray<FUnitGroupData> UProjectWrapper::GetUnitGroupListData() const
{
	TArray<FUnitGroupData> Result;
	Result.Reserve(UnitGroups.Num());
	for (const UUnitGroupWrapper* UnitGroup : UnitGroups)
	{
		Result.Add(UnitGroup->GetUnitGroupData());
	}
	return Result;
}

TArray<UConfiguratorWrapper*> UProjectWrapper::GetConfigurators() const
{
	TArray<UConfiguratorWrapper*> Result;
	for (UConfiguratorWrapper* Configurator : Configurators)
	{
		Result.Add(Configurator);
	}
	return Result;
}

UConfiguratorWrapper* UProjectWrapper::GetConfiguratorByName(const FName& ConfiguratorName) const
{
	for (UConfiguratorWrapper* Configurator : Configurators)
	{
		if (Configurator->GetConfiguratorName() == ConfiguratorName)
		{
			return Configurator;
		}
	}
	return nullptr;
}

FString UConfiguratorWrapper::GetUnitGroupNames() const
{
	TArray<FString> Names;
	for (const FVelmorantConfiguratorUnitGroup& UnitGroup : UnitGroupCollection)
	{
		Names.Add(UnitGroup.Name);
	}
	return FString::Join(Names, TEXT(", "));
}

void UConfiguratorWrapper::RequestUpdateData(EUpdateRequestDataType DataType, EUpdateRequestType RequestType)
{
	if (DataType == EUpdateRequestDataType::Configurator)
	{
		GetTypedOuter<UVelmorantProjectRequestManager>()->RequestConfigurator(ConfiguratorName, RequestType);
	}
}
