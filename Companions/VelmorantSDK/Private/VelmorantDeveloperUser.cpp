// Copyright Velmorant. All Rights Reserved.

#include "VelmorantDeveloperUser.h"

#include "IVelmorantService.h"
#include "SavedUserData.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

void UVelmorantDeveloperUser::PostInitProperties()
{
	Super::PostInitProperties();
	if (!HasAnyFlags(RF_ClassDefaultObject))
	{
		bHasSavedUserData = SavedUserData::Load(UserInformation);
	}
}

bool UVelmorantDeveloperUser::HasSavedUserData() const
{
	return bHasSavedUserData;
}

void UVelmorantDeveloperUser::SaveUserData()
{
	bHasSavedUserData = SavedUserData::Save(UserInformation);
}

void UVelmorantDeveloperUser::HandleLoggedIn()
{
	if (!UserInformation.bRememberMe)
	{
		bHasSavedUserData = false;
		SavedUserData::Forget(); // whoever signs in without the option does not want to be remembered
	}
}

void UVelmorantDeveloperUser::RequestEditorUserProjects()
{
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestProjects(GetToken(), [WeakThis = TWeakObjectPtr<UVelmorantDeveloperUser>(this)](bool bSuccess, const TArray<FProject>& Projects) {
		if (UVelmorantDeveloperUser* This = WeakThis.Get())
		{
			This->ReceiveProjects(bSuccess, Projects);
		}
	});
}

void UVelmorantDeveloperUser::ReceiveProjects(bool bSuccess, const TArray<FProject>& Projects)
{
	if (bSuccess)
	{
		EditorUserProjects = Projects;
	}
	OnProjectsResponse.Broadcast(bSuccess, Projects);
}

void UVelmorantDeveloperUser::SetSelectedProject(const FProject& Project, bool bForceUpdate)
{
	GetProjectRequestManager()->SelectProject(Project, bForceUpdate);
}
