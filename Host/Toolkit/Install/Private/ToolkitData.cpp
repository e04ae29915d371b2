// Copyright Velmorant. All Rights Reserved.

#include "ToolkitData.h"

namespace ToolkitData
{
	namespace
	{
		FString GetRoot()
		{
			return FString(VELMORANT_DATA_DIR);
		}
	}

	FString GetModuleFolder(const FString& Module)
	{
		return GetRoot() / TEXT("Source") / Module;
	}

	FString GetCompanionsFolder()
	{
		return GetRoot() / TEXT("Companions");
	}

	FString GetCompanionTables()
	{
		return GetRoot() / TEXT("Docs/Companions.md");
	}
}
