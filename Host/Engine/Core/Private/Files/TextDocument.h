// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

#include <string>
#include <string_view>
#include <vector>

enum class ETextEncoding : uint8
{
	Utf8,
	Utf8WithBom,
	Utf16LittleEndian, // with byte-order mark, as is the next one
	Utf16BigEndian
};

enum class ELineEnd : uint8
{
	None, // the end of the text ends the line; as input to SetLines(): whatever is usual in this file
	Lf,
	CrLf,
	Cr
};

struct FTextLine
{
	std::u16string_view Text; // without its end
	ELineEnd End = ELineEnd::None;
};

/** A text file taken apart into lines such that putting it together again gives the same bytes. Lines point into it. */
class FTextDocument
{
public:
	/** An empty file in the encoding of plain new files. */
	FTextDocument() = default;
	FTextDocument(FTextDocument&&) = default;
	FTextDocument& operator=(FTextDocument&&) = default;

	/**
	 * Takes over what the bytes hold.
	 * @param OutFault what is wrong with them, as the end of a sentence; OutFaultLine is one-based
	 * @return false when no supported encoding explains the bytes, or when they hold null characters and so are no text.
	 */
	bool Decode(std::string_view Bytes, std::string& OutFault, int32& OutFaultLine);

	/**
	 * Where the bytes are UTF-8, with or without a mark, checks them like Decode() and leaves it at that: most readers of big files look at
	 * a small part of them.
	 * @param OutUtf8 the bytes without mark
	 * @return false, with the fault, when they are not sound. Other encodings count as a fault without a description.
	 */
	static bool CheckUtf8(std::string_view Bytes, std::string_view& OutUtf8, std::string& OutFault, int32& OutFaultLine);

	/** False when UTF-8 is wanted and a line holds half of a surrogate pair. */
	bool Encode(std::string& OutBytes) const;

	const std::vector<FTextLine>& GetLines() const { return Lines; }
	std::u16string_view GetText() const { return std::u16string_view(Units.data(), Units.size()); }

	ETextEncoding GetEncoding() const { return Encoding; }
	void SetEncoding(ETextEncoding InEncoding) { Encoding = InEncoding; }

	/** The line end that most lines have; LF when none has one. */
	ELineEnd GetUsualEnd() const;

	/**
	 * Replaces the lines; their texts must live as long as this document does. Lines without an end get the usual one. The last line has
	 * an end exactly if the last line had one before; in a document without lines it gets one.
	 */
	void SetLines(std::vector<FTextLine> NewLines);

	/** The same texts with line ends: lines in common with this document, at the beginning and at the end, keep theirs. */
	std::vector<FTextLine> KeepLineEnds(const std::vector<std::u16string_view>& Texts) const;

	/** As the last line's end would not follow from the lines before: overrides it. Does nothing without lines. */
	void SetLastLineEnds(bool bEnds);

	/** Splits at CRLF, LF and lone CR; an end at the very end starts no further line. */
	static std::vector<FTextLine> SplitLines(std::u16string_view Text);

private:
	ETextEncoding Encoding = ETextEncoding::Utf8;
	std::vector<char16_t> Units; // a vector, because lines point into it and moving a vector leaves its elements where they are
	std::vector<FTextLine> Lines;
};
