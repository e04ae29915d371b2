// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorArguments.h"
#include "ExitStatus.h"

/** A file that the editor reads besides the project's. */
struct FRunInput
{
	FString Path;
	FString Switch; // of the editor's command line
	FString Missing; // half a sentence, for when it is not there
	FString Remedy;
};

struct FRunArguments
{
	FString Project; // a .uproject, or a folder with one in it
	FEditorArguments Editor;
	FString Script;
	TArray<FRunInput> Inputs;
	bool bJson = false;
	bool bAllowToolkitContent = false; // to be written
};

/** velmorant run: does in a project what a script says. */
namespace RunCommand
{
	/** Whether all files that were named are there; tells of those that are not. */
	bool CheckFiles(const FRunArguments& Arguments);

	/** The editor that the arguments ask for. */
	FEditorHostOptions MakeOptions(const FString& Project, const FRunArguments& Arguments);

	/** A script or input called "-" comes from the standard input. */
	EExitStatus Run(FRunArguments Arguments);
}
