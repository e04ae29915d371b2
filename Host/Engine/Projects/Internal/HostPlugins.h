// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** Finding the plugins of the running editor. */
namespace HostPlugins
{
	/** Where assets whose paths begin with Root are stored. */
	struct FContentMount
	{
		FString Root; // with slashes at both ends: "/Game/"
		FString Directory; // full path with a trailing slash
	};

	/**
	 * Reads the .uplugin in each folder directly in these directories. A directory may be missing. A plugin whose name was found before is
	 * left out, so directories that come first win. A malformed descriptor is reported and its plugin left out.
	 */
	void Discover(const TArray<FString>& Directories);

	/** The project's content, then that of the enabled plugins that can have some, by name. */
	TArray<FContentMount> GetContentMounts();
}
