// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"

#include <map>
#include <string>

/** The files of the project that a script works in, and what its configuration was before. */
class FProjectFiles
{
public:
	/** @param InProjectDir full path with a slash at the end */
	explicit FProjectFiles(const FString& InProjectDir);

	/** Full path of a file of the project; empty for one outside. */
	FString Find(const FString& Relative) const;

	/** Other paths stay as they are. */
	FString MakeRelative(const FString& Path) const;

	/** The text of a file in Config as it was when this was made; empty for one that was not there. UTF-8. */
	std::string GetFirstText(const FString& Path) const;

private:
	FString ProjectDir;
	std::map<std::string, std::string> FirstTexts; // by full path
};
