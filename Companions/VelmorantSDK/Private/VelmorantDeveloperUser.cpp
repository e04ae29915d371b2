// Copyright Velmorant. All Rights Reserved.

#include "VelmorantDeveloperUser.h"

#include "IVelmorantService.h"
#include "SavedUserData.h"
#include "VelmorantFailureTexts.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"
#include "VelmorantSDKSettings.h"

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
	GetProjectRequestManager()->Resume();
}

void UVelmorantDeveloperUser::HandleAccountLeft()
{
	++NumAccountsLeft;
	// First: the other account's projects are none of those who hear of the change.
	EditorUserProjects.Empty();
	bProjectsKnown = false;
	ProjectsFailure = EVelmorantFailure::None;
	bUseAtRuntime = false;
	Super::HandleAccountLeft();
}

FText UVelmorantDeveloperUser::GetProjectsFailureText() const
{
	return VelmorantFailureTexts::Get(ProjectsFailure);
}

bool UVelmorantDeveloperUser::IsDefaultApiKeyForeign() const
{
	const FString& DefaultApiKey = GetDefault<UVelmorantSDKSettings>()->ApiKey;
	return bProjectsKnown && !DefaultApiKey.IsEmpty() && !EditorUserProjects.ContainsByPredicate([&DefaultApiKey](const FProject& Project) {
		return Project.ApiKey.Equals(DefaultApiKey, ESearchCase::IgnoreCase);
	});
}

void UVelmorantDeveloperUser::RequestEditorUserProjects()
{
	UVelmorantSDKEngineSubsystem::Get()->GetService().RequestProjects(GetToken(), [WeakThis = TWeakObjectPtr<UVelmorantDeveloperUser>(this), AskedAfter = NumAccountsLeft, AskedWith = GetToken()](const FVelmorantProjectsAnswer& Answer) {
		UVelmorantDeveloperUser* This = WeakThis.Get();
		if (This && This->NumAccountsLeft == AskedAfter)
		{
			This->NoteFailure(Answer.Failure, AskedWith);
			This->ReceiveProjects(Answer);
		}
		else if (This)
		{
			// An answer for an account that was left meanwhile still ends the request, but as a failed one. It says nothing of the
			// requests of the next account.
			This->OnProjectsResponse.Broadcast(false, {});
		}
	});
}

void UVelmorantDeveloperUser::ReceiveProjects(const FVelmorantProjectsAnswer& Answer)
{
	ProjectsFailure = Answer.Failure;
	if (Answer.IsSuccess())
	{
		EditorUserProjects = Answer.Projects;
		bProjectsKnown = true;
	}
	OnProjectsResponse.Broadcast(Answer.IsSuccess(), Answer.Projects);
}

void UVelmorantDeveloperUser::SetSelectedProject(const FProject& Project, bool bForceUpdate)
{
	GetProjectRequestManager()->SelectProject(Project, bForceUpdate);
}
