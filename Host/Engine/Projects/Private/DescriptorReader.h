// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>

/**
 * A .uplugin or .uproject file while it is being read. Problems are reported with the file and, for what is not JSON at all, the line. A
 * member of the wrong type is reported and counts as missing; members that are not asked for are ignored.
 */
class FDescriptorReader
{
public:
	/** Null for a missing file or one that holds no JSON object; reported. */
	static std::unique_ptr<FDescriptorReader> Open(const FString& File);

	~FDescriptorReader();

	void Read(const char* Member, FString& OutText);
	void Read(const char* Member, int32& OutNumber);
	void Read(const char* Member, bool& bOutFlag);
	void ReadModules(TArray<FModuleDescriptor>& OutModules);
	void ReadPlugins(TArray<FPluginReferenceDescriptor>& OutPlugins);

	/** Whether everything that was asked for so far was sound. */
	bool IsSound() const { return bSound; }

private:
	FDescriptorReader(const FString& InFile, nlohmann::json&& InRoot);

	void ReadText(const nlohmann::json& Object, const char* Member, const FString& Where, FString& OutText);
	void ReadFlag(const nlohmann::json& Object, const char* Member, const FString& Where, bool& bOutFlag);
	void ReportWrongType(const FString& Where, const char* Member, const TCHAR* Wanted);

	FString File;
	std::unique_ptr<nlohmann::json> Root; // an object
	bool bSound = true;
};
