// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProjectRequestManager.h"

#include "ConfiguratorWrapper.h"
#include "IVelmorantService.h"
#include "ProjectWrapper.h"
#include "UnitGroupWrapper.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantUser.h"

void UVelmorantProjectRequestManager::SelectProject(const FProject& Project, bool bForceUpdate)
{
	const bool bSameProject = ProjectWrapper && ProjectWrapper->ProjectData.KeyCode == Project.KeyCode;
	if (bSameProject && !bForceUpdate)
	{
		return;
	}

	if (!bSameProject)
	{
		// There at once, with its name and key; its lists fill when the service answers.
		ProjectWrapper = NewObject<UProjectWrapper>(this);
	}
	ProjectWrapper->ProjectData = Project;
	RequestProjectData();
}

void UVelmorantProjectRequestManager::ClearProject()
{
	if (ProjectWrapper)
	{
		ProjectWrapper = nullptr;
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::ProjectData, EUpdateRequestType::Get);
	}
}

void UVelmorantProjectRequestManager::RequestProjectData()
{
	const TWeakObjectPtr<UProjectWrapper> Requested(ProjectWrapper.Get());
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestProjectData(GetToken(), ProjectWrapper->ProjectData.KeyCode, [WeakThis = TWeakObjectPtr<UVelmorantProjectRequestManager>(this), Requested](const FVelmorantProjectAnswer& Answer) {
		// An answer for a project that is no longer the selected one comes too late to be of use.
		UVelmorantProjectRequestManager* This = WeakThis.Get();
		if (This && This->ProjectWrapper && This->ProjectWrapper == Requested.Get())
		{
			This->ReceiveProjectData(Answer);
		}
	});
}

void UVelmorantProjectRequestManager::ReceiveProjectData(const FVelmorantProjectAnswer& Answer)
{
	if (!Answer.bSuccess)
	{
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::None, EUpdateRequestType::Get); // finished, without data
		return;
	}

	const FString TargetKeyCode = ProjectWrapper->UnitGroupTarget ? ProjectWrapper->UnitGroupTarget->UnitGroupData.KeyCode : FString();
	ProjectWrapper->UnitGroupTarget = nullptr;
	ProjectWrapper->UnitGroups.Reset();
	for (const FVelmorantUnitGroupRecord& Record : Answer.UnitGroups)
	{
		UUnitGroupWrapper* UnitGroup = NewObject<UUnitGroupWrapper>(ProjectWrapper);
		UnitGroup->UnitGroupData = Record.Group;
		UnitGroup->Units = Record.Units;
		ProjectWrapper->UnitGroups.Add(UnitGroup);
	}
	if (!TargetKeyCode.IsEmpty())
	{
		SetSelectedUnitGroup(FName(TargetKeyCode));
	}

	// Wrappers that stay keep their identity: others may hold on to them.
	TArray<TObjectPtr<UConfiguratorWrapper>> Configurators;
	for (const FVelmorantConfiguratorRecord& Record : Answer.Configurators)
	{
		UConfiguratorWrapper* Configurator = ProjectWrapper->GetConfiguratorByName(Record.Name);
		if (!Configurator)
		{
			Configurator = NewObject<UConfiguratorWrapper>(ProjectWrapper);
			Configurator->ConfiguratorName = Record.Name;
		}
		Configurator->UnitCollection = Record.Units;
		Configurator->UnitGroupCollection = Record.UnitGroups;
		Configurators.Add(Configurator);
	}
	ProjectWrapper->Configurators = MoveTemp(Configurators);

	OnUpdateRequest.Broadcast(EUpdateRequestDataType::ProjectData, EUpdateRequestType::Get);
}

void UVelmorantProjectRequestManager::SetSelectedUnitGroup(FName KeyCode)
{
	if (!ProjectWrapper)
	{
		return;
	}
	for (UUnitGroupWrapper* UnitGroup : ProjectWrapper->UnitGroups)
	{
		if (FName(UnitGroup->UnitGroupData.KeyCode) == KeyCode)
		{
			ProjectWrapper->UnitGroupTarget = UnitGroup;
			return;
		}
	}
}

void UVelmorantProjectRequestManager::RequestConfigurator(FName ConfiguratorName, EUpdateRequestType RequestType)
{
	if (!ProjectWrapper)
	{
		return;
	}

	const TWeakObjectPtr<UProjectWrapper> Requested(ProjectWrapper.Get());
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestConfigurator(GetToken(), ProjectWrapper->ProjectData.KeyCode, ConfiguratorName, [WeakThis = TWeakObjectPtr<UVelmorantProjectRequestManager>(this), Requested, RequestType](const TOptional<FVelmorantConfiguratorRecord>& Record) {
		UVelmorantProjectRequestManager* This = WeakThis.Get();
		if (This && This->ProjectWrapper && This->ProjectWrapper == Requested.Get())
		{
			This->ReceiveConfigurator(Record, RequestType);
		}
	});
}

void UVelmorantProjectRequestManager::ReceiveConfigurator(const TOptional<FVelmorantConfiguratorRecord>& Record, EUpdateRequestType RequestType)
{
	UConfiguratorWrapper* Configurator = Record.IsSet() ? ProjectWrapper->GetConfiguratorByName(Record.GetValue().Name) : nullptr;
	if (!Configurator)
	{
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::None, RequestType); // finished, without data
		return;
	}

	Configurator->UnitCollection = Record.GetValue().Units;
	Configurator->UnitGroupCollection = Record.GetValue().UnitGroups;
	OnUpdateRequest.Broadcast(EUpdateRequestDataType::ConfiguratorData, RequestType);
}

const FString& UVelmorantProjectRequestManager::GetToken() const
{
	return CastChecked<UVelmorantUser>(GetOuter())->GetToken();
}
