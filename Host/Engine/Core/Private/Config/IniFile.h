// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/**
 * One ini file as it was when it was read. Only the headers are looked for at once; entries are parsed when their section is asked for,
 * because most sections of a project's files are never asked for.
 */
class FIniFile
{
public:
	struct FEntry
	{
		std::string Key; // with its prefix, UTF-8
		std::string Value; // without quotes
	};

	/** Null for a missing file. One that cannot be read or is no text is reported and has no sections. */
	static std::unique_ptr<FIniFile> Read(const FString& File);

	/** Section is folded (see IniSyntax::Fold) UTF-8. */
	bool HasSection(const std::string& Section) const { return Sections.contains(Section); }

	/** The entries in order; a section that comes several times is one. Empty for a section that is not there. */
	std::vector<FEntry> ReadSection(const std::string& Section) const;

private:
	struct FRange
	{
		size_t Begin = 0;
		size_t End = 0;
	};

	void FindSections();

	std::string Text; // UTF-8, without byte-order mark
	std::unordered_map<std::string, std::vector<FRange>> Sections;
};
