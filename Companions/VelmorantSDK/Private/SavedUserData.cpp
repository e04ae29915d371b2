// Copyright Velmorant. All Rights Reserved.

#include "SavedUserData.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformProcess.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VelmorantSDKLog.h"
#include "VelmorantSDKTypes.h"

#include <nlohmann/json.hpp>
#include <string>

namespace SavedUserData
{
	FString GetPath()
	{
		return FPaths::Combine(FPlatformProcess::UserSettingsDir(), TEXT("VelmorantUser.json"));
	}
}

bool SavedUserData::Load(FVelmorantUserInformation& OutUserInformation)
{
	FString Text;
	if (!FPaths::FileExists(GetPath()) || !FFileHelper::LoadFileToString(Text, *GetPath()))
	{
		return false;
	}

	const nlohmann::json Document = nlohmann::json::parse(TCHAR_TO_UTF8(*Text), nullptr, false);
	const bool bComplete = Document.is_object() && Document.contains("userName") && Document["userName"].is_string() && Document.contains("password") && Document["password"].is_string();
	if (!bComplete)
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("%s is damaged and is not used; sign in again to replace it."), *GetPath());
		return false;
	}

	OutUserInformation.bRememberMe = true;
	OutUserInformation.UserName = UTF8_TO_TCHAR(Document["userName"].get<std::string>().c_str());
	OutUserInformation.Password = UTF8_TO_TCHAR(Document["password"].get<std::string>().c_str());
	return true;
}

bool SavedUserData::Save(const FVelmorantUserInformation& UserInformation)
{
	nlohmann::json Document;
	Document["userName"] = TCHAR_TO_UTF8(*UserInformation.UserName);
	Document["password"] = TCHAR_TO_UTF8(*UserInformation.Password);

	const std::string Text = Document.dump();
	const TArrayView<const uint8> Bytes(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
	const bool bSaved = FFileHelper::SaveArrayToFile(Bytes, *GetPath());
	if (!bSaved)
	{
		UE_LOG(LogVelmorantSDK, Error, TEXT("The user could not be remembered in %s."), *GetPath());
	}
	return bSaved;
}

void SavedUserData::Forget()
{
	IFileManager::Get().Delete(*GetPath(), false, false, true);
}
