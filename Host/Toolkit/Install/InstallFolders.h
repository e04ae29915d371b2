// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

namespace InstallFolders
{
	/** Where an installation is prepared: beside the sources, where the engine's build looks for none, and on their file system. */
	inline FString GetStage(const FString& PluginFolder)
	{
		return PluginFolder / TEXT(".velmorant-install");
	}
}
