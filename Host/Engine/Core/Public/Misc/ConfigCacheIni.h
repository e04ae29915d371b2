// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "CoreTypes.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

/** One value of a key. */
struct FConfigValue
{
	FConfigValue() = default;
	explicit FConfigValue(const FString& InValue);

	/** With macros such as %GAMEDIR% replaced. */
	const FString& GetValue() const { return ExpandedValue.IsEmpty() ? SavedValue : ExpandedValue; }

private:
	FString SavedValue;
	FString ExpandedValue; // empty when there is nothing to expand
};

using FConfigSectionMap = TMultiMap<FName, FConfigValue>;

/** The entries of a section in the order of the file; a key may come more than once. */
class FConfigSection : public FConfigSectionMap
{
};

/**
 * The configuration that this editor has read.
 *
 * Filename is either the file of a branch (GEngineIni and its like: the engine's base file, the project's Default….ini, its platform's file
 * and the user's own, merged) or any other file, which is then read alone, with the + - . ! of its keys kept as part of their names. Sections and keys
 * ignore case. A file is read when it is first asked for and stays as it was until UnloadFile() or LoadFile(); nothing here writes it.
 *
 * Host: the copy of a single file also follows what this editor writes to that file, by whatever way. What others write stays unseen.
 */
class FConfigCacheIni
{
public:
	FConfigCacheIni();
	~FConfigCacheIni();
	FConfigCacheIni(const FConfigCacheIni&) = delete;
	FConfigCacheIni& operator=(const FConfigCacheIni&) = delete;

	bool DoesSectionExist(const TCHAR* Section, const FString& Filename);

	/** One "Key=Value" per entry, in order. Result is emptied first. @return false for a missing section or file. */
	bool GetSection(const TCHAR* Section, TArray<FString>& Result, const FString& Filename);

	/** Null when missing, or, with Force, an empty section. Good until the file is unloaded, loaded again or written. */
	const FConfigSection* GetSection(const TCHAR* Section, const bool Force, const FString& Filename);

	/** @return false, Value untouched, when there is no such key; of several values the last one counts. */
	bool GetString(const TCHAR* Section, const TCHAR* Key, FString& Value, const FString& Filename);

	/** All values of the key in order; OutArray is emptied first. @return how many there are. */
	int32 GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& OutArray, const FString& Filename);

	/** Reads the file anew. */
	void LoadFile(const FString& Filename);

	/** The next question reads the file anew. */
	void UnloadFile(const FString& Filename);

private:
	class FFiles;
	TUniquePtr<FFiles> Files;
};
