// Copyright Velmorant. All Rights Reserved.

#include "VelmorantProjectRequestManager.h"

#include "ConfiguratorWrapper.h"
#include "IVelmorantService.h"
#include "ProjectWrapper.h"
#include "UnitGroupWrapper.h"
#include "VelmorantFailureTexts.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantUser.h"

namespace VelmorantProjectRequestManager
{
	/** Key codes may be longer than any name; those that only differ further on share one. */
	FName MakeName(const FString& KeyCode)
	{
		return FName(FStringView(KeyCode).Left(NAME_SIZE - 1));
	}
}

void UVelmorantProjectRequestManager::SelectProject(const FProject& Project, bool bForceUpdate)
{
	const bool bSameProject = ProjectWrapper && ProjectWrapper->ProjectData.KeyCode == Project.KeyCode;
	if (bSameProject && !bForceUpdate && (ProjectWrapper->bFetched || IsRequestingProjectData()))
	{
		return;
	}

	if (!bSameProject)
	{
		// There at once, with its name and key; its lists fill when the service answers.
		SetProjectWrapper(NewObject<UProjectWrapper>(this));
	}
	ProjectWrapper->ProjectData = Project;
	RequestProjectData();
	if (!bSameProject)
	{
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::ProjectData, EUpdateRequestType::Get);
	}
}

void UVelmorantProjectRequestManager::ClearProject()
{
	if (ProjectWrapper)
	{
		SetProjectWrapper(nullptr);
		OnProjectDataRequest.Broadcast();
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::ProjectData, EUpdateRequestType::Get);
	}
}

void UVelmorantProjectRequestManager::SetProjectWrapper(UProjectWrapper* InProjectWrapper)
{
	ProjectWrapper = InProjectWrapper;
	ProjectFailure = EVelmorantFailure::None;
	NumProjectRequests = 0;
}

void UVelmorantProjectRequestManager::RefreshProject()
{
	if (ProjectWrapper && !IsRequestingProjectData())
	{
		RequestProjectData();
	}
}

void UVelmorantProjectRequestManager::Resume()
{
	if (!HasProjectData())
	{
		RefreshProject();
	}
}

FString UVelmorantProjectRequestManager::GetSelectedProjectName() const
{
	return ProjectWrapper ? ProjectWrapper->ProjectData.ProjectName : FString();
}

bool UVelmorantProjectRequestManager::HasProjectData() const
{
	return ProjectWrapper && ProjectWrapper->bFetched;
}

FText UVelmorantProjectRequestManager::GetProjectDataFailureText() const
{
	return VelmorantFailureTexts::Get(ProjectFailure);
}

void UVelmorantProjectRequestManager::RequestProjectData()
{
	++NumProjectRequests;
	ProjectFailure = EVelmorantFailure::None;
	const TWeakObjectPtr<UProjectWrapper> Requested(ProjectWrapper.Get());
	const FString Token = GetUser().GetToken();
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestProjectData(Token, ProjectWrapper->ProjectData.KeyCode, [WeakThis = TWeakObjectPtr<UVelmorantProjectRequestManager>(this), Requested, Token](const FVelmorantProjectAnswer& Answer) {
		// An answer for a project that is no longer the selected one comes too late to be of use.
		UVelmorantProjectRequestManager* This = WeakThis.Get();
		if (This && This->ProjectWrapper && This->ProjectWrapper == Requested.Get())
		{
			--This->NumProjectRequests;
			This->ProjectFailure = Answer.Failure;
			This->GetUser().NoteFailure(Answer.Failure, Token);
			This->ReceiveProjectData(Answer);
			This->OnProjectDataRequest.Broadcast();
		}
	});
	OnProjectDataRequest.Broadcast();
}

void UVelmorantProjectRequestManager::ReceiveProjectData(const FVelmorantProjectAnswer& Answer)
{
	if (!Answer.IsSuccess())
	{
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::None, EUpdateRequestType::Get); // finished, without data
		return;
	}

	ProjectWrapper->bFetched = true;
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
		SetSelectedUnitGroup(VelmorantProjectRequestManager::MakeName(TargetKeyCode));
	}

	// Wrappers that stay keep their identity: others may hold on to them.
	TMap<FName, UConfiguratorWrapper*> Known;
	for (UConfiguratorWrapper* Configurator : ProjectWrapper->Configurators)
	{
		Known.Add(Configurator->ConfiguratorName, Configurator);
	}
	TArray<TObjectPtr<UConfiguratorWrapper>> Configurators;
	for (const FVelmorantConfiguratorRecord& Record : Answer.Configurators)
	{
		UConfiguratorWrapper* Configurator = Known.FindRef(Record.Name);
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
		if (VelmorantProjectRequestManager::MakeName(UnitGroup->UnitGroupData.KeyCode) == KeyCode)
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
	const FString Token = GetUser().GetToken();
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestConfigurator(Token, ProjectWrapper->ProjectData.KeyCode, ConfiguratorName, [WeakThis = TWeakObjectPtr<UVelmorantProjectRequestManager>(this), Requested, Token, RequestType](const FVelmorantConfiguratorAnswer& Answer) {
		UVelmorantProjectRequestManager* This = WeakThis.Get();
		if (This && This->ProjectWrapper && This->ProjectWrapper == Requested.Get())
		{
			This->GetUser().NoteFailure(Answer.Failure, Token);
			This->ReceiveConfigurator(Answer, RequestType);
		}
	});
}

void UVelmorantProjectRequestManager::ReceiveConfigurator(const FVelmorantConfiguratorAnswer& Answer, EUpdateRequestType RequestType)
{
	UConfiguratorWrapper* Configurator = Answer.IsSuccess() ? ProjectWrapper->GetConfiguratorByName(Answer.Configurator.Name) : nullptr;
	if (!Configurator)
	{
		OnUpdateRequest.Broadcast(EUpdateRequestDataType::None, RequestType); // finished, without data
		return;
	}

	Configurator->UnitCollection = Answer.Configurator.Units;
	Configurator->UnitGroupCollection = Answer.Configurator.UnitGroups;
	OnUpdateRequest.Broadcast(EUpdateRequestDataType::ConfiguratorData, RequestType);
}

UVelmorantUser& UVelmorantProjectRequestManager::GetUser() const
{
	return *CastChecked<UVelmorantUser>(GetOuter());
}
