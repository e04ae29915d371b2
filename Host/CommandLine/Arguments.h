// Copyright Velmorant. All Rights Reserved.

#pragma once

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

/** velmorant automation [PROJECT] [FILTER] [--list | --report FOLDER | --compare REPORT] [--with-repair] */
struct FAutomationArguments
{
	FString Project; // may be empty with bList or Compare
	FString Filter; // parts of the tests' paths, joined by '+'; empty: all
	FString Report; // the folder to export to; empty: nowhere
	FString Compare; // what an engine exported; empty: nothing
	bool bList = false;
	bool bRepair = false; // also the test that edits the project's configuration and puts it back
};

/** What the program was asked to do: exactly one of these is set. */
struct FArguments
{
	TOptional<FCheckArguments> Check;
	TOptional<FRunArguments> Run;
	TOptional<FAutomationArguments> Automation;
};

namespace Arguments
{
	/** @return unset to go on with OutArguments; else how to end, after help or what is wrong has been printed. */
	TOptional<EExitStatus> Parse(int Count, const char* const* Values, FArguments& OutArguments);
}
