// Copyright Velmorant. All Rights Reserved.

#include "Config/ConfigBranch.h"

#include "HostConfig.h"
#include "Misc/Paths.h"

namespace ConfigBranch
{
	namespace
	{
		FString GetUserFolder()
		{
			return FPaths::GeneratedConfigDir() + TEXT("LinuxEditor/");
		}
	}

	FString GetFile(const FString& Name)
	{
		return GetUserFolder() + Name + TEXT(".ini");
	}

	bool IsBranchFile(const FString& Filename, FString& OutName)
	{
		OutName = FPaths::GetBaseFilename(Filename);
		return !OutName.IsEmpty() && Filename == GetFile(OutName);
	}

	TArray<FString> GetLayers(const FString& Name)
	{
		return {FPaths::EngineConfigDir() + TEXT("Base") + Name + TEXT(".ini"), HostConfig::GetDefaultFile(Name), GetFile(Name)};
	}
}
