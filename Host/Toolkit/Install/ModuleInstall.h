// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Contract/CompanionContract.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"

#include <string>

struct FInstallOptions
{
	bool bWithTests = false;
	bool bForce = false; // files that differ are overwritten
};

/** A file that an installation writes. */
struct FInstallFile
{
	FString Path; // from the plugin's folder
	std::string Bytes;
	bool bExists = false; // with other bytes
	std::string OldBytes;
	std::string Text; // of the descriptor, which may be in any encoding: UTF-8
	std::string OldText;
};

/** What an installation would do to a plugin, and what keeps it from that. */
struct FInstallPlan
{
	FString PluginFolder; // full
	FContractReport Contract;
	TArray<FInstallFile> Files; // the descriptor, if it is to be changed, is the last
	int32 NumUpToDate = 0; // files that are there already, as they are to be
	TArray<FString> DescriptorChanges;
	TArray<FString> Obstacles; // as long as there are any, nothing is installed
	TArray<FString> Remarks;
	bool bLeftovers = false; // of an installation that was interrupted

	bool HasWork() const { return !Files.IsEmpty() || bLeftovers; }
};

/** The editor module in the toolkit's real plugin. */
namespace ModuleInstall
{
	/** The plugin's descriptor. Empty, with the reason reported, when the folder is not that of the toolkit's plugin. */
	FString FindDescriptor(const FString& PluginFolder);

	/** Looks at everything and changes nothing. Unset, with the reason reported, when a file cannot be read. */
	TOptional<FInstallPlan> Plan(const FString& Descriptor, const FInstallOptions& Options);

	/** Whether all files could be written. Reports what stands in the way. */
	bool CheckWritable(const FInstallPlan& Plan);

	/**
	 * Does what was planned: all is prepared in a folder of its own, then put in its place, the descriptor last. Ended at any point, it leaves
	 * what another run completes. False, with the reason reported, when a file could not be written.
	 */
	bool Apply(const FInstallPlan& Plan);
}
