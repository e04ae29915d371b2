// Copyright Velmorant. All Rights Reserved.

#include "ServiceData/VelmorantSelectedProject.h"

#include "VelmorantDeveloperUser.h"
#include "VelmorantProjectRequestManager.h"
#include "VelmorantSDKEngineSubsystem.h"

UProjectWrapper* VelmorantSelectedProject::Find()
{
	const UVelmorantDeveloperUser* EditorUser = UVelmorantSDKEngineSubsystem::GetVelmorantEditorUser(false);
	const UVelmorantProjectRequestManager* RequestManager = EditorUser ? EditorUser->GetProjectRequestManager() : nullptr;
	return RequestManager ? RequestManager->GetProjectWrapper() : nullptr;
}
