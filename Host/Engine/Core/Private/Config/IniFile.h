// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Config/IniEntries.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "HostTextFiles.h"

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
	using FLine = FIniLine;

	struct FEntry
	{
		std::string Key; // with its prefix, UTF-8
		std::string Value; // without quotes
		FLine Line; // the first one, where several are joined
	};

	/** A name of a section as HasSection() and ReadSection() want it: folded (see IniSyntax::Fold) UTF-8. */
	static std::string FoldName(const FString& Name);

	/**
	 * Null for a missing file. One that cannot be read or is no text is reported and has no sections. Whoever still holds what was read of
	 * the unchanged file shares it with the caller.
	 */
	static std::shared_ptr<const FIniFile> Read(const FString& File);

	/** Whether it could not be read at least once since the editor came up. */
	static bool HasFailed(const FString& File);

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

	std::string_view GetText() const { return Text.Get(); }
	void FindSections();

	FString Path;
	FHostText Text;
	std::unordered_map<std::string, std::vector<FRange>> Sections;
};
