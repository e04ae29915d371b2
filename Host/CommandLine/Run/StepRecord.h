// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ExitStatus.h"
#include "Run/ScriptCommand.h"
#include "Run/StepEvents.h"

/** What there is to tell of one step. Holds no secret: typed passwords are bullets already. */
struct FStepRecord
{
	int32 Line = 0; // of the script, one-based; 0 for the start of the editor
	FString Text; // as it stands in the script
	FString Heading; // of a step that only is a title
	FStepResult Result;
	TArray<FString> Output;
	FStepEvents Events;
};

/** What there is to tell at the end. */
struct FRunSummary
{
	EExitStatus Status = EExitStatus::Done;
	int32 NumSteps = 0; // that were done
	TArray<FString> WrittenFiles; // relative to the project where they are in it
	TArray<FString> Unsaved; // packages that were lost
	TArray<int32> UnusedAnswers; // script lines of answers that nothing asked for
};
