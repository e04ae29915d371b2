// Copyright Velmorant. All Rights Reserved.

#include "HostConfig.h"

#include "Config/ConfigBranch.h"
#include "HostState.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"

namespace HostConfig
{
	namespace
	{
		/** GConfig while an editor is up. */
		struct FBootedConfig
		{
			FBootedConfig()
			{
				GConfig = &Cache;
				GEngineIni = GetBranchFile(TEXT("Engine"));
				GGameIni = GetBranchFile(TEXT("Game"));
				GEditorIni = GetBranchFile(TEXT("Editor"));
				GEditorPerProjectIni = GetBranchFile(TEXT("EditorPerProjectUserSettings"));
			}

			~FBootedConfig()
			{
				GConfig = nullptr;
				for (FString* Name : {&GEngineIni, &GGameIni, &GEditorIni, &GEditorPerProjectIni})
				{
					Name->Empty();
				}
			}

			FConfigCacheIni Cache;
		};

		THostState<FBootedConfig> Booted;
	}

	void Boot()
	{
		Booted.Get();
	}

	FString GetBranchFile(const FString& Name)
	{
		return ConfigBranch::GetFile(Name);
	}

	FString GetDefaultFile(const FString& Name)
	{
		return FPaths::ProjectConfigDir() + TEXT("Default") + Name + TEXT(".ini");
	}

	void ReloadBranch(const FString& Name)
	{
		Booted.Get().Cache.UnloadFile(GetBranchFile(Name));
	}
}
