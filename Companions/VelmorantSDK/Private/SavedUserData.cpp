// Copyright Velmorant. All Rights Reserved.

#include "SavedUserData.h"

#include "DesktopSecrets.h"
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
	// Members of the file. The first two are there when the file itself keeps them; what it keeps is newer than what the store does.
	const char* const UserNameMember = "userName";
	const char* const PasswordMember = "password";
	const char* const InSecretStoreMember = "inSecretStore"; // whether there is an item in the store, and be it an old one

	FString GetPath()
	{
		return FPaths::Combine(FPlatformProcess::UserSettingsDir(), TEXT("VelmorantUser.json"));
	}

	/** Neither throws nor tells where the text is wrong: it may be a password. */
	nlohmann::json Parse(const std::string& Text)
	{
		return nlohmann::json::parse(Text, nullptr, false);
	}

	enum class ERead
	{
		Done,
		Missing,
		Failed
	};

	ERead ReadFile(nlohmann::json& OutDocument)
	{
		FString Text;
		OutDocument = nlohmann::json();
		if (!FPaths::FileExists(GetPath()))
		{
			return ERead::Missing;
		}
		if (!FFileHelper::LoadFileToString(Text, *GetPath()))
		{
			return ERead::Failed;
		}
		OutDocument = Parse(TCHAR_TO_UTF8(*Text));
		return ERead::Done;
	}

	bool WriteFile(const nlohmann::json& Document)
	{
		const std::string Text = Document.dump();
		const TArrayView<const uint8> Bytes(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
		const bool bSaved = FFileHelper::SaveArrayToFile(Bytes, *GetPath());
		if (!bSaved)
		{
			UE_LOG(LogVelmorantSDK, Error, TEXT("The user could not be remembered in %s."), *GetPath());
		}
		return bSaved;
	}

	bool IsInSecretStore(const nlohmann::json& Document)
	{
		return Document.is_object() && Document.value(InSecretStoreMember, nlohmann::json()) == true;
	}

	bool Take(const nlohmann::json& Document, FVelmorantUserInformation& OutUserInformation)
	{
		const auto HasText = [&Document](const char* Member) { return Document.contains(Member) && Document[Member].is_string(); };
		if (!Document.is_object() || !HasText(UserNameMember) || !HasText(PasswordMember))
		{
			return false;
		}
		OutUserInformation.bRememberMe = true;
		OutUserInformation.UserName = UTF8_TO_TCHAR(Document[UserNameMember].get<std::string>().c_str());
		OutUserInformation.Password = UTF8_TO_TCHAR(Document[PasswordMember].get<std::string>().c_str());
		return true;
	}

	bool LoadFromSecretStore(FVelmorantUserInformation& OutUserInformation)
	{
		std::string Secret;
		FString Reason = TEXT("what it keeps is damaged");
		const bool bLoaded = DesktopSecrets::Load(Secret, Reason) && Take(Parse(Secret), OutUserInformation);
		if (!bLoaded)
		{
			UE_LOG(LogVelmorantSDK, Warning, TEXT("The remembered user could not be read from the desktop's secret store: %s. Sign in again."), *Reason);
		}
		return bLoaded;
	}
}

bool SavedUserData::Load(FVelmorantUserInformation& OutUserInformation)
{
	nlohmann::json Document;
	if (ReadFile(Document) != ERead::Done)
	{
		return false;
	}
	if (Take(Document, OutUserInformation))
	{
		return true;
	}
	if (IsInSecretStore(Document))
	{
		return LoadFromSecretStore(OutUserInformation);
	}
	UE_LOG(LogVelmorantSDK, Warning, TEXT("%s is damaged and is not used; sign in again to replace it."), *GetPath());
	return false;
}

bool SavedUserData::Save(const FVelmorantUserInformation& UserInformation)
{
	nlohmann::json Document;
	if (ReadFile(Document) == ERead::Failed)
	{
		// It may tell of an item in the store, which nobody would remove any more.
		UE_LOG(LogVelmorantSDK, Error, TEXT("The user could not be remembered: %s is there and cannot be read."), *GetPath());
		return false;
	}
	const bool bWasInSecretStore = IsInSecretStore(Document);

	const nlohmann::json Kept = {{UserNameMember, TCHAR_TO_UTF8(*UserInformation.UserName)}, {PasswordMember, TCHAR_TO_UTF8(*UserInformation.Password)}};
	FString Reason;
	if (DesktopSecrets::IsThere(Reason))
	{
		// The file first: an item that no file tells of would never be removed.
		nlohmann::json Note;
		Note[InSecretStoreMember] = true;
		if (!WriteFile(Note))
		{
			return false;
		}
		if (DesktopSecrets::Store(Kept.dump(), Reason))
		{
			return true;
		}
	}
	nlohmann::json InFile = Kept;
	if (bWasInSecretStore)
	{
		InFile[InSecretStoreMember] = true;
	}
	if (!WriteFile(InFile))
	{
		return false;
	}
	UE_LOG(LogVelmorantSDK, Log, TEXT("The user is remembered in %s, which nobody else can read, and not in the desktop's secret store: %s."), *GetPath(), *Reason);
	return true;
}

void SavedUserData::Forget()
{
	nlohmann::json Document;
	ReadFile(Document);
	IFileManager::Get().Delete(*GetPath(), false, false, true);
	FString Reason;
	if (IsInSecretStore(Document) && !DesktopSecrets::Clear(Reason))
	{
		UE_LOG(LogVelmorantSDK, Warning, TEXT("The user is still remembered in the desktop's secret store: %s. Remove the item \"%s\" there."), *Reason, DesktopSecrets::ItemLabel);
	}
}
