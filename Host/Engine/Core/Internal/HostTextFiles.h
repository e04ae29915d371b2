// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/UnrealString.h"
#include "HostFiles.h"

#include <string>

/**
 * Text files in any of the encodings the editor writes: UTF-8 with and without byte-order mark, UTF-16 in both byte orders with one.
 * Bytes that none of them explains, and text with null characters, are reported to HostProblems.
 */
namespace HostTextFiles
{
	/** The text as UTF-8 without byte-order mark, line ends as in the file: what a JSON parser wants. */
	HostFiles::ERead ReadUtf8(const FString& Path, std::string& OutText);

	/** Whether the file can be read as text, or is not there at all. Reports what is wrong. */
	bool CheckReadable(const FString& Path);
}
