// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <string_view>

/** An editor whose project is in memory only, for all inputs of a process. */
namespace FuzzEditor
{
	/** Brings it up the first time; forgets what was reported otherwise. */
	void Prepare();

	/** Full path of a file of the project, which holds these bytes from now on. */
	FString Write(const TCHAR* File, std::string_view Bytes);

	/** What stands in it; empty for a missing one. */
	std::string Read(const FString& Path);

	/** That there is a message with its file if something went wrong, and that every message has text and file. */
	void PromiseMessages(bool bWrong);

	FString ToText(std::string_view Utf8);
}
