// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/FileChanges.h"
#include "Check/SpoiledSetup.h"
#include "Check/ToolkitVerdict.h"
#include "EditorArguments.h"
#include "HostFiles.h"
#include "HostProblems.h"

/** What came of it when an editor checked a project and perhaps repaired it, behind a write overlay: not a byte on disk changed. */
struct FCheckRun
{
	EToolkitVerdict Found = EToolkitVerdict::None; // by the check
	EToolkitVerdict Verdict = EToolkitVerdict::None; // in the end: by the editor that started anew after the repair, if there was one
	bool bRepaired = false; // the buttons were there and could be pressed
	bool bHadProfile = false; // before the repair; the channel may have been missing all the same
	TArray<FString> CheckMessages; // of the toolkit, before the repair
	TArray<FString> Messages; // all of them
	TArray<FSpoiler> SpoiledBy; // in the files as they would be in the end
	TArray<FHostProblem> Problems;
	TArray<FFileText> CheckFiles; // what the check alone would have written
	TArray<FFileText> Files; // what all of it would have written
	TArray<HostFiles::FPendingWrite> Writes; // the same as bytes
};

namespace CheckRun
{
	/** Starts an editor, which checks. */
	FCheckRun Check(const FString& Project, const FEditorArguments& Editor);

	/**
	 * Where the profile is missing, also presses the buttons of the toolkit's repair that a person would press; then a new editor checks
	 * what the first one would have written.
	 *
	 * @param Editor must leave somebody to press buttons: with a user interface, and notifications
	 */
	FCheckRun Rehearse(const FString& Project, const FEditorArguments& Editor);
}
