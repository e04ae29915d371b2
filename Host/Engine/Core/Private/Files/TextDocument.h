// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "HostFiles.h"
#include "HostLines.h"

#include <string>
#include <string_view>

enum class ETextEncoding : uint8
{
	Utf8,
	Utf8WithBom,
	Utf16LittleEndian, // with byte-order mark, as is the next one
	Utf16BigEndian
};

/** A text file as one UTF-8 text. Ranges of it that an edit keeps become the same bytes again (FTextComposer). */
class FTextDocument
{
public:
	/** An empty file in the encoding of plain new files. */
	FTextDocument() = default;
	FTextDocument(const FTextDocument&) = delete;
	FTextDocument& operator=(const FTextDocument&) = delete;

	/**
	 * Takes over what the bytes hold. Files that are UTF-8 already, which may be large, are not copied.
	 * @param OutFault what is wrong with them, as the end of a sentence; OutFaultLine is one-based
	 * @return false when no supported encoding explains the bytes, or when they hold null characters and so are no text.
	 */
	bool Decode(HostFiles::FSharedBytes InBytes, std::string& OutFault, int32& OutFaultLine);

	/** Without byte-order mark. Half of a surrogate pair, which a UTF-16 file can hold, is three bytes. */
	std::string_view GetText() const { return Text; }

	/** What was decoded; never null. */
	const HostFiles::FSharedBytes& GetBytes() const { return Bytes; }

	/** Whether the text stands apart from the bytes, because these are UTF-16. */
	bool IsConverted() const;

	ETextEncoding GetEncoding() const { return Encoding; }

	/** The line end that most lines have; LF when none has one. */
	ELineEnd GetUsualEnd() const;

private:
	HostFiles::FSharedBytes Bytes = std::make_shared<const std::string>();
	std::string Converted; // of UTF-16
	std::string_view Text; // into one of them
	ETextEncoding Encoding = ETextEncoding::Utf8;
};

/** Makes the next text of a document from ranges of the old one, and new lines. */
class FTextComposer
{
public:
	explicit FTextComposer(const FTextDocument& InOld);

	/** Whole lines of the old text, as they are; but a last line without end gets the usual one when more follows. */
	void Keep(size_t Begin, size_t End);

	void Add(std::string_view Line, ELineEnd End = ELineEnd::None);

	bool IsEmpty() const { return Text.empty(); }

	/** Whether the last line is empty or nothing but blanks. */
	bool EndsWithBlankLine() const;

	/** Whether the last line is to have an end. As in the old text unless it is said; in one without lines it has one. */
	void SetLastLineEnds(bool bEnds) { bLastLineEnds = bEnds; }

	/** The new text. Nothing can be done with the composer afterwards. */
	std::string Finish();

private:
	void EndLine();

	const FTextDocument& Old;
	ELineEnd UsualEnd;
	bool bLastLineEnds;
	std::string Text;
	size_t LastEndLength = 0; // of the last line's end, in bytes
};

namespace TextEncoding
{
	/** What a file with this text holds. False when UTF-8 is wanted and the text has half of a surrogate pair. */
	bool Encode(std::string Text, ETextEncoding Encoding, std::string& OutBytes);
}
