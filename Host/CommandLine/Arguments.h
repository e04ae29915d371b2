// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "EditorArguments.h"
#include "ExitStatus.h"
#include "Misc/Optional.h"

/** velmorant check PROJECT [--diff] [--repair | --undo] [--json] */
struct FCheckArguments
{
	FString Project; // a .uproject, or a folder with one in it
	FEditorArguments Editor;
	bool bDiff = false;
	bool bRepair = false;
	bool bUndo = false; // never with bRepair
	bool bJson = false;
};

/** velmorant run PROJECT SCRIPT [--service FILE] [--json] */
struct FRunArguments
{
	FString Project;
	FEditorArguments Editor;
	FString Script;
	FString Service; // the service's data file; empty: the one that the project names
	bool bJson = false;
};

/** velmorant install PLUGIN-FOLDER [--dry-run] [--with-tests] [--force] */
struct FInstallArguments
{
	FString PluginFolder;
	bool bDryRun = false;
	bool bWithTests = false;
	bool bForce = false;
};

/** velmorant contract PLUGIN-FOLDER… */
struct FContractArguments
{
	TArray<FString> PluginFolders;
};

/** What the program was asked to do: exactly one of these is set. */
struct FArguments
{
	TOptional<FCheckArguments> Check;
	TOptional<FRunArguments> Run;
	TOptional<FInstallArguments> Install;
	TOptional<FContractArguments> Contract;
};

namespace Arguments
{
	/** @return unset to go on with OutArguments; else how to end, after help or what is wrong has been printed. */
	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FArguments& OutArguments);
}
