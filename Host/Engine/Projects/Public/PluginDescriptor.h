// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "ModuleDescriptor.h"
#include "PluginReferenceDescriptor.h"

/** What a .uplugin file says about its plugin. What it does not say is empty. */
struct FPluginDescriptor
{
	int32 Version = 0;
	FString VersionName; // free text, for people
	FString FriendlyName;
	FString Description;
	FString Category;
	FString CreatedBy;
	FString DocsURL;
	FString SupportURL;
	TArray<FModuleDescriptor> Modules;
	TArray<FPluginReferenceDescriptor> Plugins;
	bool bCanContainContent = false;
};
