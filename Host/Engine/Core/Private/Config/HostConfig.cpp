// Copyright Velmorant. All Rights Reserved.

#include "HostConfig.h"

#include "Config/ConfigBranch.h"
#include "Config/IniMerge.h"
#include "Config/IniSyntax.h"
#include "Containers/StringConv.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "HostState.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"

namespace HostConfig
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

	struct FPlatform
	{
		FString Name = TEXT("Linux"); // the host runs nowhere else
	};

	THostState<FPlatform> Platform;

	const TArray<FString>& GetPlatforms()
	{
		static const TArray<FString> Names = {TEXT("Windows"), TEXT("Linux"), TEXT("Mac")};
		return Names;
	}

	void SetPlatform(const FString& Name)
	{
		Platform->Name = Name;
	}

	const FString& GetPlatform()
	{
		return Platform->Name;
	}

	/** Else all of the project's configuration would count as missing. */
	void CheckFolder()
	{
		const FString Folder = FPaths::ProjectConfigDir().LeftChop(1);
		const HostFiles::EKind Kind = HostFiles::GetKind(Folder);
		if (Kind == HostFiles::EKind::File || Kind == HostFiles::EKind::Other)
		{
			HostProblems::Report(FPaths::ConvertRelativePathToFull(Folder), 0, TEXT("a file stands where the folder of the project's configuration is to be"), TEXT("Move it away."));
		}
	}

	void Boot()
	{
		CheckFolder();
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

	TArray<FString> GetLayers(const FString& Name)
	{
		return ConfigBranch::GetLayers(Name);
	}

	FString FindUnread(const FString& Name)
	{
		const TArray<FString> Layers = GetLayers(Name);
		const FString* const Found = Layers.FindByPredicate([](const FString& Layer) { return FIniFile::HasFailed(Layer); });
		return Found != nullptr ? *Found : FString();
	}

	FPlace FindLine(const FString& Name, const FString& Section, const FString& Key, const FString& Value)
	{
		FPlace Found;
		const std::string FoldedKey = FIniFile::FoldName(Key);
		const std::string ValueText(TCHAR_TO_UTF8(*Value));
		for (const std::shared_ptr<const FIniFile>& Layer : IniMerge::ReadLayers(GetLayers(Name)))
		{
			for (const FIniFile::FEntry& Entry : Layer->ReadSection(FIniFile::FoldName(Section)))
			{
				if (Entry.Value == ValueText && IniSyntax::Fold(IniSyntax::WithoutPrefix(Entry.Key)) == FoldedKey)
				{
					Found = FPlace{Layer->GetPath(), Entry.Line.Number};
				}
			}
		}
		return Found;
	}

	TArray<FRemovedValue> GetRemovedValues(const FString& Name, const FString& Section)
	{
		return IniMerge::FindRemovedValues(IniMerge::ReadLayers(GetLayers(Name)), FIniFile::FoldName(Section));
	}

	void ReloadBranch(const FString& Name)
	{
		Booted.Get().Cache.UnloadFile(GetBranchFile(Name));
	}
}
