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

void UVelmorantDeveloperUser::HandleAccountLeft()
{
	++NumAccountsLeft;
	EditorUserProjects.Empty(); // first: the other account's projects are none of those who hear of the change
	Super::HandleAccountLeft();
}

void UVelmorantDeveloperUser::RequestEditorUserProjects()
{
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestProjects(GetToken(), [WeakThis = TWeakObjectPtr<UVelmorantDeveloperUser>(this), AskedAfter = NumAccountsLeft](bool bSuccess, const TArray<FProject>& Projects) {
		if (UVelmorantDeveloperUser* This = WeakThis.Get())
		{
			// An answer for an account that was left meanwhile still ends the request, but as a failed one. The same account may have
			// signed in once more: its projects are the same.
			const bool bStillAsked = This->NumAccountsLeft == AskedAfter;
			This->ReceiveProjects(bSuccess && bStillAsked, bStillAsked ? Projects : TArray<FProject>());
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
