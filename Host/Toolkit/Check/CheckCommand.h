// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "EditorArguments.h"
#include "ExitStatus.h"

struct FCheckArguments
{
	FString Project; // a .uproject, or a folder with one in it
	FEditorArguments Editor;
	bool bDiff = false;
	bool bRepair = false;
	bool bUndo = false; // never with bRepair
	bool bJson = false;
};

/** velmorant check: looks for the unit volumes' collision profile, adds it when asked to, and takes that back when asked to. */
namespace CheckCommand
{
	EExitStatus Run(const FCheckArguments& Arguments);
}
