// Copyright Velmorant. All Rights Reserved.

#include "Misc/ConfigCacheIni.h"

#include "Config/ConfigBranch.h"
#include "Config/IniMerge.h"
#include "HostFiles.h"
#include "Misc/Paths.h"

#include <memory>
#include <string>
#include <unordered_map>

FConfigCacheIni* GConfig = nullptr;
FString GEngineIni;
FString GGameIni;
FString GEditorIni;
FString GEditorPerProjectIni;

namespace ConfigCacheIni
{
	FString Expand(const FString& Value)
	{
		int32 Percent = INDEX_NONE;
		if (!Value.FindChar(TEXT('%'), Percent))
		{
			return FString();
		}
		FString Result = Value;
		Result.ReplaceInline(TEXT("%GAMEDIR%"), *FPaths::ProjectDir(), ESearchCase::CaseSensitive);
		Result.ReplaceInline(TEXT("%GAME%"), *FPaths::GetBaseFilename(FPaths::GetProjectFilePath()), ESearchCase::CaseSensitive);
		Result.ReplaceInline(TEXT("%ENGINEDIR%"), *FPaths::EngineDir(), ESearchCase::CaseSensitive);
		Result.ReplaceInline(TEXT("%APPSETTINGSDIR%"), *FPaths::GeneratedConfigDir(), ESearchCase::CaseSensitive);
		return Result.Equals(Value) ? FString() : Result;
	}

	/** A branch or a single file, and the sections of it that were asked for. */
	class FCachedFile
	{
	public:
		explicit FCachedFile(const FString& InFilename)
			: Filename(InFilename)
			, NumChanges(HostFiles::GetNumChanges(InFilename))
		{
			FString Branch;
			bBranch = ConfigBranch::IsBranchFile(Filename, Branch);
			Layers = IniMerge::ReadLayers(bBranch ? ConfigBranch::GetLayers(Branch) : TArray<FString>{Filename});
		}

		/** A single file that is missing is looked for again with every question. */
		bool IsMissing() const { return !bBranch && Layers.empty(); }

		/** Whether this editor wrote a single file since. What others write is not looked for, and a branch waits until it is reloaded. */
		bool IsOutdated() const { return !bBranch && HostFiles::GetNumChanges(Filename) != NumChanges; }

		bool HasSection(const FString& Section) const
		{
			const std::string Name = FIniFile::FoldName(Section);
			for (const std::shared_ptr<const FIniFile>& Layer : Layers)
			{
				if (Layer->HasSection(Name))
				{
					return true;
				}
			}
			return false;
		}

		FConfigSection* FindSection(const FString& Section, bool bForce)
		{
			const std::string Name = FIniFile::FoldName(Section);
			const auto Known = Sections.find(Name);
			if (Known != Sections.end())
			{
				return Known->second.get();
			}
			std::unique_ptr<FConfigSection> Read = bBranch ? IniMerge::Merge(Layers, Name) : IniMerge::ReadAsWritten(*Layers.front(), Name);
			if (Read == nullptr && bForce)
			{
				Read = std::make_unique<FConfigSection>();
			}
			return Read != nullptr ? (Sections[Name] = std::move(Read)).get() : nullptr;
		}

	private:
		FString Filename;
		uint32 NumChanges = 0;
		bool bBranch = false;
		IniMerge::FLayers Layers;
		std::unordered_map<std::string, std::unique_ptr<FConfigSection>> Sections; // by folded name
	};
}

FConfigValue::FConfigValue(const FString& InValue)
	: SavedValue(InValue)
	, ExpandedValue(ConfigCacheIni::Expand(InValue))
{
}

/** By the path as it was given: another spelling of a path is another copy. */
class FConfigCacheIni::FFiles
{
public:
	/** Null for a single file that is missing. */
	ConfigCacheIni::FCachedFile* Find(const FString& Filename)
	{
		const std::string Key = FIniFile::FoldName(Filename);
		const auto Known = Files.find(Key);
		if (Known != Files.end() && !Known->second->IsOutdated())
		{
			return Known->second.get();
		}
		Files.erase(Key);
		std::unique_ptr<ConfigCacheIni::FCachedFile> Read = std::make_unique<ConfigCacheIni::FCachedFile>(Filename);
		return !Read->IsMissing() ? (Files[Key] = std::move(Read)).get() : nullptr;
	}

	void Forget(const FString& Filename) { Files.erase(FIniFile::FoldName(Filename)); }

private:
	std::unordered_map<std::string, std::unique_ptr<ConfigCacheIni::FCachedFile>> Files;
};

FConfigCacheIni::FConfigCacheIni()
	: Files(MakeUnique<FFiles>())
{
}

FConfigCacheIni::~FConfigCacheIni() = default;

bool FConfigCacheIni::DoesSectionExist(const TCHAR* Section, const FString& Filename)
{
	const ConfigCacheIni::FCachedFile* File = Files->Find(Filename);
	return File != nullptr && File->HasSection(Section);
}

bool FConfigCacheIni::GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename)
{
	Result.Reset();
	const FConfigSection* Found = GetSection(Section, false, Filename);
	if (Found == nullptr)
	{
		return false;
	}
	Result.Reserve(Found->Num());
	for (const TPair<FName, FConfigValue>& Entry : *Found)
	{
		FString& Line = Result.Add_GetRef(Entry.Key.ToString());
		Line += TEXT('=');
		Line += Entry.Value.GetValue();
	}
	return true;
}

const FConfigSection* FConfigCacheIni::GetSection(const TCHAR* Section, const bool Force, const FString& Filename)
{
	ConfigCacheIni::FCachedFile* File = Files->Find(Filename);
	return File != nullptr ? File->FindSection(Section, Force) : nullptr;
}

bool FConfigCacheIni::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename)
{
	const FConfigSection* Found = GetSection(Section, false, Filename);
	const FConfigValue* Last = Found != nullptr ? Found->Find(FName(Key)) : nullptr;
	if (Last == nullptr)
	{
		return false;
	}
	Value = Last->GetValue();
	return true;
}

int32 FConfigCacheIni::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename)
{
	OutArray.Reset();
	if (const FConfigSection* Found = GetSection(Section, false, Filename))
	{
		TArray<FConfigValue> Values;
		Found->MultiFind(FName(Key), Values, true);
		for (const FConfigValue& Value : Values)
		{
			OutArray.Add(Value.GetValue());
		}
	}
	return OutArray.Num();
}

void FConfigCacheIni::LoadFile(const FString& Filename)
{
	Files->Forget(Filename);
	Files->Find(Filename);
}

void FConfigCacheIni::UnloadFile(const FString& Filename)
{
	Files->Forget(Filename);
}
