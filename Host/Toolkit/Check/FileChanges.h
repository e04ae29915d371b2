// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "HostTextFiles.h"

#include <string>

/** A text file at one moment, as the running editor or, without one, the disk has it. */
struct FFileText
{
	/** A file that cannot be read is reported and counts as missing. */
	static FFileText Read(const FString& Path);

	FString Path; // full, without links
	bool bExists = false;
	FHostText Text;
};

/** A file, and what a write put into it and took out of it, or would have. */
struct FFileChange
{
	FString Path;
	bool bDeleted = false;
	TArray<FString> AddedLines;
	TArray<FString> RemovedLines;

	//~ Where it is known which is which: the added lines once more.

	TArray<FString> EngineLines; // the engine's current profiles, which the toolkit's check writes where there is no collision section
	TArray<FString> ToolkitLines; // what the toolkit's repair adds
};

namespace FileChanges
{
	/** The same file among others; the file itself when it is not there, and so did not change. */
	const FFileText& Find(const TArray<FFileText>& Files, const FFileText& File);

	/** Both of the same file. */
	FFileChange Compare(const FFileText& Before, const FFileText& After);

	/** The same as a unified difference, in UTF-8. The file is called by its path in the project, one elsewhere by its full path. */
	std::string Describe(const FString& ProjectDir, const FFileText& Before, const FFileText& After);
}
