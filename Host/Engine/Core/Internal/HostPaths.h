// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/**
 * Where the running editor finds its files. Set before anything reads a file; forgotten when the editor goes down.
 * All folders are full paths with a trailing slash.
 */
namespace HostPaths
{
	/** The project to open; its folder becomes the project folder. File may be relative to the working directory. */
	void SetProjectFile(const FString& File);

	/** A project folder without a descriptor, as tests use it. */
	void SetProjectDir(const FString& Directory);

	/** Full path of the .uproject; empty when only a folder was set, or nothing. */
	const FString& GetProjectFile();

	/** Without a project this is the engine folder, as in an engine started without one. */
	const FString& GetProjectDir();

	/**
	 * What comes with the program, a file or folder by its path: it lies in share/velmorant beside the folder that the program runs from,
	 * wherever both were moved together. Links are followed, so that messages name the files themselves. Without a slash at its end.
	 */
	FString FindProgramData(const TCHAR* Path);

	/** The first that is not there of what no editor can do without; empty if all is. */
	FString FindMissingProgramData();

	/** The folder that holds Config/Base….ini: the program's own. */
	void SetEngineDir(const FString& Directory);
	const FString& GetEngineDir();

	/** By default $XDG_CONFIG_HOME/velmorant/, else ~/.config/velmorant/. What is created in it is readable by its owner only. */
	void SetUserSettingsDir(const FString& Directory);
	const FString& GetUserSettingsDir();

	/** What programs remember between runs: $XDG_STATE_HOME/velmorant/, else ~/.local/state/velmorant/. As private as the settings. */
	const FString& GetUserStateDir();

	/** Folders that hold plugins, each in a folder of its own, beside the project's Plugins folder, which always counts. */
	void SetPluginDirs(const TArray<FString>& Directories);
	TArray<FString> GetPluginDirs();
}
