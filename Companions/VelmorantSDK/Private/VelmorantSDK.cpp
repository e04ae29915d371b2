// Copyright Velmorant. All Rights Reserved.

#include "Modules/ModuleManager.h"
#include "VelmorantSDKLog.h"
#include "VelmorantSDKTypes.h"

DEFINE_LOG_CATEGORY(LogVelmorantSDK);

FVelmorantUserInformation::FVelmorantUserInformation(bool bInRememberMe, const FString& InUserName, const FString& InPassword)
	: bRememberMe(bInRememberMe)
	, UserName(InUserName)
	, Password(InPassword)
{
}

IMPLEMENT_MODULE(FDefaultModuleImpl, VelmorantSDK)
