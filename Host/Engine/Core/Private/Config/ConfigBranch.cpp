// Copyright Velmorant. All Rights Reserved.

#include "Config/ConfigBranch.h"

#include "HostConfig.h"
#include "Misc/Paths.h"

namespace ConfigBranch
{
	FString GetUserFolder()
	{
		return FPaths::GeneratedConfigDir() + HostConfig::GetPlatform() + TEXT("Editor/");
	}

	/** A platform, after the one whose settings it shares. */
	TArray<FString> GetPlatformChain()
	{
		const FString& Platform = HostConfig::GetPlatform();
		return Platform == TEXT("Linux") ? TArray<FString>{TEXT("Unix"), Platform} : TArray<FString>{Platform};
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
		TArray<FString> Layers = {FPaths::EngineConfigDir() + TEXT("Base") + Name + TEXT(".ini"), HostConfig::GetDefaultFile(Name)};
		for (const FString& Platform : GetPlatformChain())
		{
			const FString File = Platform + Name + TEXT(".ini");
			Layers.Add(FPaths::ProjectConfigDir() + Platform / File);
			Layers.Add(FPaths::ProjectDir() + TEXT("Platforms") / Platform / TEXT("Config") / File);
		}
		Layers.Add(FPaths::ProjectConfigDir() + TEXT("User") + Name + TEXT(".ini"));
		Layers.Add(GetFile(Name));
		return Layers;
	}
}
