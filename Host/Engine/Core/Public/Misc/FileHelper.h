// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "HAL/FileManager.h"

/**
 * Text files as strings.
 *
 * Host: one deliberate difference to the engine. Saving over an existing file keeps that file's encoding (unless the caller forces one) and
 * its line ends, and whether its last line had one, so that a changed line is all that changes. Identical content leaves the file alone.
 * Lines that were loaded here and are saved again keep what somebody else wrote into the file in between; if both changed the same lines,
 * nothing is written. A file that could not be decoded is never overwritten. New files follow the engine's rules.
 */
struct FFileHelper
{
	enum class EHashOptions : uint8
	{
		None = 0
	};

	enum class EEncodingOptions
	{
		AutoDetect, // a new file: single-byte when all characters are ASCII, else UTF-16, little endian, with byte-order mark
		ForceAnsi, // Host: characters beyond ASCII are refused rather than replaced
		ForceUnicode, // UTF-16, little endian, with byte-order mark
		ForceUTF8, // with byte-order mark
		ForceUTF8WithoutBOM
	};

	/** The file's bytes. @return false for a missing or unreadable file; Result is empty then. */
	static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = 0);

	/**
	 * The whole text, line ends as they are, without byte-order mark. No mark means UTF-8.
	 * @return false for a missing or unreadable file, and for bytes that are not text; Result is empty then.
	 */
	static bool LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = 0);

	/** One string a line, without line ends; CRLF, LF and a lone CR end a line. A line end at the very end starts no further line. */
	static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);

	/** Writes the bytes as they are. Missing folders are created. */
	static bool SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);

	/** Writes String as it is into a new file; an existing file keeps its kind of line ends. Missing folders are created. */
	static bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);

	/** Every line of a new file ends with LINE_TERMINATOR, the last one too. No lines make an empty file. */
	static bool SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect, IFileManager* FileManager = &IFileManager::Get(), uint32 WriteFlags = 0);
};
