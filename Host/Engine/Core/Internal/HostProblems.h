// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Templates/Function.h"

/** Something wrong with a file that the host read or was asked to write, told so that a person can put it right. */
struct FHostProblem
{
	FString File; // full path, or empty when no single file is to blame
	int32 Line = 0; // one-based; 0 when the file as a whole is meant
	FString Message; // what is wrong, a sentence without its full stop
	FString Remedy; // what to do about it, may be empty
};

/**
 * What went wrong with files of the running editor.
 *
 * The module deliberately ignores failed reads and writes; nothing may get lost without a word all the same. Programs print these and end
 * with a non-zero status.
 */
namespace HostProblems
{
	/** Keeps the problem; one that was already reported word for word for the same place is not kept twice. */
	void Report(const FString& File, int32 Line, const FString& Message, const FString& Remedy = FString());

	/** The same for work that was to be kept and could not be written: whoever listens is told, every time anew. */
	void ReportNotWritten(const FString& File, const FString& Message, const FString& Remedy);

	/** Everything that could not be written, oldest first; what failed twice is there twice. */
	const TArray<FHostProblem>& GetNotWritten();

	/** Who tells the person at the editor. Goes with the editor; null for nobody. */
	void SetNotWrittenListener(TFunction<void(const FHostProblem&)> Listener);

	/** All problems since the editor went up or Clear() was called, oldest first. */
	const TArray<FHostProblem>& GetAll();

	void Clear();

	/** "path(12): message. Remedy", the form in which programs print it. */
	FString ToString(const FHostProblem& Problem);
}
