// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "HostFiles.h"

#include <string>
#include <string_view>

/** The text of a file: UTF-8 without byte-order mark, line ends as in the file. Copies are cheap: they share it. */
class FHostText
{
public:
	FHostText() = default;
	FHostText(std::string InText);

	/** @param InText a part of InBytes */
	FHostText(HostFiles::FSharedBytes InBytes, std::string_view InText);

	std::string_view Get() const { return Text; }

	/** Whether both are the same part of the same bytes. */
	bool IsShared(const FHostText& Other) const { return Text.data() == Other.Text.data() && Text.size() == Other.Text.size(); }

	bool operator==(const FHostText& Other) const { return Text == Other.Text; }

private:
	HostFiles::FSharedBytes Bytes; // or null for an empty text
	std::string_view Text;
};

/**
 * Text files in any of the encodings the editor writes: UTF-8 with and without byte-order mark, UTF-16 in both byte orders with one.
 * Bytes that none of them explains, and text with null characters, are reported to HostProblems.
 */
namespace HostTextFiles
{
	HostFiles::ERead ReadUtf8(const FString& Path, FHostText& OutText);

	/** The same as a copy of the caller's own: what a JSON parser wants. */
	HostFiles::ERead ReadUtf8(const FString& Path, std::string& OutText);

	/** Whether the file can be read as text, or is not there at all. Reports what is wrong. */
	bool CheckReadable(const FString& Path);
}
