// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

/**
 * Folders of engine and project, and paths as text. Folders are full paths and end with a slash.
 * Host: relative paths count from the working directory of the process.
 */
class FPaths
{
public:
	static FString EngineDir();
	static FString EngineConfigDir();
	static FString ProjectDir();
	static FString ProjectContentDir();
	static FString ProjectPluginsDir();
	static FString ProjectSavedDir();
	static FString ProjectConfigDir();

	/** The same folder as ProjectConfigDir(). The reference is good until the editor goes down. */
	static const FString& SourceConfigDir();

	/** Where the user's own layer of the configuration is kept, a folder per platform in it. */
	static FString GeneratedConfigDir();

	/** Empty when no project is open. */
	static FString GetProjectFilePath();

	/** PathPart without the slash at its end, ExtensionPart without its dot: "/Game/A/X.Y" gives "/Game/A", "X", "Y". */
	static void Split(const FString& InPath, FString& PathPart, FString& FilenamePart, FString& ExtensionPart);

	/** Everything before the last slash; empty when there is none. */
	static FString GetPath(const FString& InPath);

	/** The name without its last extension; with the folders before it unless they are to be removed. */
	static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);

	/** The name with its extension. */
	static FString GetCleanFilename(const FString& InPath);

	static FString GetExtension(const FString& InPath, bool bIncludeDot = false);

	/** Joins with exactly one slash at each seam; empty parts are left out. */
	template<typename... PathTypes>
	static FString Combine(PathTypes&&... InPaths)
	{
		const FStringView Parts[] = {FStringView(InPaths)...};
		return CombineParts(Parts, static_cast<int32>(sizeof...(PathTypes)));
	}

	static bool IsRelative(const FString& InPath);

	/** Full path without "." and ".." parts; symbolic links stay. */
	static FString ConvertRelativePathToFull(const FString& InPath);

	static bool FileExists(const FString& InPath);

private:
	static FString CombineParts(const FStringView* Parts, int32 Num);
};
