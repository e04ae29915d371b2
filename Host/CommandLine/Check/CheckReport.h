// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ExitStatus.h"
#include "HostProblems.h"

enum class ECheckStatus : uint8
{
	Sound,
	Repaired,
	Missing,
	StillMissing, // after the repair
	Trouble, // files, or no verdict
};

/** A file, and what a write put into it or would have put. */
struct FFileChange
{
	FString Path;
	bool bDeleted = false;
	TArray<FString> AddedLines;
};

/** Everything that a check found out. */
struct FCheckReport
{
	ECheckStatus Status = ECheckStatus::Trouble;
	FString Project; // full path of the .uproject
	TArray<FString> Messages; // what the toolkit said, in order
	TArray<FFileChange> PendingWrites; // without repair: what would have been written
	TArray<FFileChange> WrittenFiles; // by the repair
	TArray<FString> LinesToAdd; // by hand, when the repair did not help
	TArray<FHostProblem> Problems;
};

namespace CheckReport
{
	EExitStatus GetExitStatus(ECheckStatus Status);

	/** For people. Problems are left out: they go to the error output. */
	void PrintText(const FCheckReport& Report);

	/** One object. */
	void PrintJson(const FCheckReport& Report);
}
