// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"

#include <string>
#include <vector>

/** What is compared with what. */
struct FContractRequest
{
	TArray<FString> PluginFolders; // modules that none of these has are looked for in the plugins beside them
	FString ModuleFolder; // sources of the editor module: the headers that they include are asked for
	FString Tables; // the document that lists what the module expects
	FString ReferenceFolder; // the reference companions, each in a folder of its own
};

enum class EPresence
{
	Found,
	Elsewhere, // where the module does not look
	Missing
};

/** A module or header that has to be there. */
struct FContractPlace
{
	std::string Name;
	EPresence Presence = EPresence::Missing;
	std::string Path; // of what was found
};

/** A name that the plugin's companions do not have, or declare in another way. */
struct FContractDifference
{
	std::string Path; // of what was found, or of what should have it
	int Line = 0; // 0 when there is none
	std::string Message;
};

/** How the companions of a plugin stand to what the editor module expects of them. */
struct FContractReport
{
	std::vector<FContractPlace> Modules;
	std::vector<FContractPlace> Headers;
	std::vector<FContractDifference> Given; // in what the toolkit itself has given: the module cannot work like that
	std::vector<FContractDifference> Chosen; // in what was chosen here: the module's few uses are to be edited, or the companion
	std::vector<std::string> Unread; // what could not be read of the headers concerned, with file and line
	int32 NumCompared = 0; // names that were looked for
	int32 NumExact = 0; // of these: declarations that could be compared part by part

	bool IsSound() const;
};

namespace CompanionContract
{
	/** Unset, with the reason reported, when what belongs to the program itself cannot be read. */
	TOptional<FContractReport> Check(const FContractRequest& Request);
}
