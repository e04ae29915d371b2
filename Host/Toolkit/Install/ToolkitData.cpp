// Copyright Velmorant. All Rights Reserved.

#include "Install/ToolkitData.h"

#include "HostPaths.h"

namespace ToolkitData
{
	FString GetModuleFolder(const FString& Module)
	{
		return HostPaths::FindProgramData(*(FString(TEXT("Source")) / Module));
	}

	FString GetCompanionsFolder()
	{
		return HostPaths::FindProgramData(TEXT("Plugins"));
	}

	FString GetCompanionTables()
	{
		return HostPaths::FindProgramData(TEXT("Docs/Companions.md"));
	}
}
