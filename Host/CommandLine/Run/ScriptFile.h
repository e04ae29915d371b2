// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Run/Script.h"

namespace ScriptFile
{
	/** What is wrong with the file goes to HostProblems; the text is empty then. */
	FString ReadText(const FString& Path);

	/** False, with what is wrong printed, when the text is no script. */
	bool Parse(const FString& Path, const FString& Text, bool bJson, FScript& OutScript);
}
