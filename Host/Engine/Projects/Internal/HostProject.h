// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

/** What a .uproject file says about its project. What it does not say is empty. */
struct FHostProject
{
	FString EngineAssociation;
	FString Category;
	FString Description;
	TArray<FModuleDescriptor> Modules;
	TArray<FPluginReferenceDescriptor> Plugins;
};

namespace HostProject
{
	/**
	 * Finds the project that a person means: a .uproject file, or a folder with exactly one in it.
	 * @param OutUnread whether there may be one in a folder that cannot be read
	 * @return its full path; empty, with the reason reported, when there is none or more than one.
	 */
	FString Find(const FString& FileOrFolder, bool* OutUnread = nullptr);

	/** False, with the reason reported, for a missing or malformed file. */
	bool Read(const FString& File, FHostProject& OutProject);
}
