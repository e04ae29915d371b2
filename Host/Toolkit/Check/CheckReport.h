// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Check/FileChanges.h"
#include "Check/SpoiledSetup.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ExitStatus.h"
#include "HostProblems.h"

#include <string>

enum class ECheckStatus : uint8
{
	Sound,
	Repaired,
	Missing,
	StillMissing, // the repair would not have helped; nothing was written
	Undone,
	NotUndone, // the lines of the repair are not as they were
	Trouble, // files, or no verdict
};

/** Everything that a check found out. */
struct FCheckReport
{
	ECheckStatus Status = ECheckStatus::Trouble;
	FString Project; // full path of the .uproject
	TArray<FString> Messages; // what the toolkit said, in order
	TArray<FSpoiler> SpoiledBy; // lines that take the set-up away
	TArray<FFileChange> PendingWrites; // without repair: what the check would have written
	TArray<FFileChange> RepairWrites; // without repair: what that would write
	TArray<FFileChange> WrittenFiles; // by the repair, or when it was taken back
	std::string Difference; // the same, or what the repair would write, as a unified difference; UTF-8
	TArray<FString> LinesToAdd; // by hand, when the repair does not help
	FString Reason; // why the repair does not help, or could not be taken back; the end of a sentence
	TArray<FHostProblem> Problems;
};

namespace CheckReport
{
	enum class EChanges : uint8
	{
		Lines,
		Difference
	};

	EExitStatus GetExitStatus(ECheckStatus Status);

	/** For people. Problems are left out: they go to the error output. */
	void PrintText(const FCheckReport& Report, EChanges Changes);

	/** One object. */
	void PrintJson(const FCheckReport& Report);
}
