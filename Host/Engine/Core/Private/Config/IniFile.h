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
	/** A line of the file. */
	struct FLine
	{
		int32 Number = 0; // one-based
		size_t Begin = 0; // for GetText()
	};

	struct FEntry
	{
		std::string Key; // with its prefix, UTF-8
		std::string Value; // without quotes
		FLine Line; // the first one, where several are joined
	};

	/** A name of a section as HasSection() and ReadSection() want it: folded (see IniSyntax::Fold) UTF-8. */
	static std::string FoldName(const FString& Name);

	/** Null for a missing file. One that cannot be read or is no text is reported and has no sections. */
	static std::unique_ptr<FIniFile> Read(const FString& File);

	const FString& GetPath() const { return Path; }

	bool HasSection(const std::string& Section) const { return Sections.contains(Section); }

	/** The entries in order; a section that comes several times is one. Empty for a section that is not there. */
	std::vector<FEntry> ReadSection(const std::string& Section) const;

	/** As it is written, without its end. */
	std::string_view GetText(const FLine& Line) const;

private:
	struct FRange
	{
		FLine First; // behind the header
		size_t End = 0;
	};

	void FindSections();

	FString Path;
	std::string Text; // UTF-8, without byte-order mark
	std::unordered_map<std::string, std::vector<FRange>> Sections;
};
