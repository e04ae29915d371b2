// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HostLog.h"
#include "Run/ScriptCommand.h"

/** What a program's scripts know besides the editor itself: a toolkit that is part of the program. */
struct FScriptExtension
{
	TArray<FScriptTopic> Topics;
	bool (*IsShown)(const FHostLogLine& Line) = nullptr; // even if it is no warning
	bool (*IsTrouble)(const FHostLogLine& Line) = nullptr; // with files or data that belong to the run as the project's do
};

namespace ScriptExtension
{
	/** Before the first script is read. */
	void Set(const FScriptExtension& Extension);

	/** Without anything, unless it was set. */
	const FScriptExtension& Get();
}
