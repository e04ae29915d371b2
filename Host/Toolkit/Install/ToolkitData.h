// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

/** What belongs to the program besides itself, for installing the module and comparing companions. */
namespace ToolkitData
{
	/** Sources of the editor module, and of its tests for the engine. */
	FString GetModuleFolder(const FString& Module);

	/** The reference companions, each in a folder of its own. */
	FString GetCompanionsFolder();

	/** The document that lists what the module expects of its companions. */
	FString GetCompanionTables();
}
