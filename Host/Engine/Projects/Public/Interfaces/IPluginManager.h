// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "PluginDescriptor.h"
#include "Templates/SharedPointer.h"

/** A plugin that was found on disk. Folders are full paths without a trailing slash. */
class IPlugin
{
public:
	virtual ~IPlugin() = default;

	/** The name of its descriptor file without extension. */
	virtual const FString& GetName() const = 0;

	virtual FString GetBaseDir() const = 0;
	virtual FString GetContentDir() const = 0;

	/** Root of its assets, with slashes at both ends: "/Name/". */
	virtual FString GetMountedAssetPath() const = 0;

	virtual bool IsEnabled() const = 0;
	virtual bool CanContainContent() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/** The plugins of the running editor. */
class IPluginManager
{
public:
	static IPluginManager& Get();

	virtual ~IPluginManager() = default;

	/** By name alone, ignoring case. Null for a plugin that was not found. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
	TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name) { return FindPlugin(FStringView(FString(Name))); }

	/** In order of their names. */
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() const = 0;
};
