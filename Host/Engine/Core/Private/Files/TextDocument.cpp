// Copyright Velmorant. All Rights Reserved.

#include "Files/TextDocument.h"

#include "Files/TextCoding.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace TextDocument
{
	constexpr std::string_view Utf8Bom = "\xEF\xBB\xBF";
	constexpr std::string_view Utf16LittleBom = "\xFF\xFE";
	constexpr std::string_view Utf16BigBom = "\xFE\xFF";

	/** Takes the byte-order mark, if any, off Bytes. */
	ETextEncoding Detect(std::string_view& Bytes)
	{
		const auto Take = [&Bytes](std::string_view Mark) {
			const bool bFound = Bytes.starts_with(Mark);
			Bytes.remove_prefix(bFound ? Mark.size() : 0);
			return bFound;
		};
		if (Take(Utf8Bom))
		{
			return ETextEncoding::Utf8WithBom;
		}
		if (Take(Utf16LittleBom))
		{
			return ETextEncoding::Utf16LittleEndian;
		}
		return Take(Utf16BigBom) ? ETextEncoding::Utf16BigEndian : ETextEncoding::Utf8;
	}

	bool IsUtf16(ETextEncoding Encoding)
	{
		return Encoding == ETextEncoding::Utf16LittleEndian || Encoding == ETextEncoding::Utf16BigEndian;
	}

	/** To UTF-8. Half of a pair stays what it is. */
	std::string DecodeUtf16(std::string_view Bytes, ETextEncoding Encoding)
	{
		const size_t Low = Encoding == ETextEncoding::Utf16LittleEndian ? 0 : 1;
		std::vector<char16_t> Units(Bytes.size() / 2);
		for (size_t Index = 0; Index < Units.size(); ++Index)
		{
			const auto ByteAt = [&](size_t Offset) { return static_cast<unsigned char>(Bytes[Index * 2 + Offset]); };
			Units[Index] = static_cast<char16_t>(ByteAt(Low) | (ByteAt(1 - Low) << 8));
		}
		std::string Text;
		Text.reserve(Units.size());
		TextCoding::EncodeUtf8(std::u16string_view(Units.data(), Units.size()), Text, TextCoding::EHalfPairs::Keep);
		return Text;
	}

	void AppendUtf16(std::string_view Text, ETextEncoding Encoding, std::string& Out)
	{
		std::vector<char16_t> Units;
		size_t BadOffset = 0;
		TextCoding::DecodeUtf8(Text, Units, BadOffset, TextCoding::EHalfPairs::Keep);
		const size_t Low = Encoding == ETextEncoding::Utf16LittleEndian ? 0 : 1;
		const size_t Before = Out.size();
		Out.resize(Before + Units.size() * 2);
		for (size_t Index = 0; Index < Units.size(); ++Index)
		{
			Out[Before + Index * 2 + Low] = static_cast<char>(static_cast<unsigned char>(Units[Index] & 0xFF));
			Out[Before + Index * 2 + 1 - Low] = static_cast<char>(static_cast<unsigned char>(Units[Index] >> 8));
		}
	}

	std::string_view ToText(ELineEnd End)
	{
		switch (End)
		{
			case ELineEnd::Lf:
				return "\n";
			case ELineEnd::CrLf:
				return "\r\n";
			case ELineEnd::Cr:
				return "\r";
			default:
				return {};
		}
	}

	std::string_view ToMark(ETextEncoding Encoding)
	{
		switch (Encoding)
		{
			case ETextEncoding::Utf8WithBom:
				return Utf8Bom;
			case ETextEncoding::Utf16LittleEndian:
				return Utf16LittleBom;
			case ETextEncoding::Utf16BigEndian:
				return Utf16BigBom;
			default:
				return {};
		}
	}

	/** One-based line in which the character stands. */
	int32 LineOf(std::string_view Text, size_t At)
	{
		const std::string_view Before = Text.substr(0, At);
		return 1 + static_cast<int32>(std::count(Before.begin(), Before.end(), '\n'));
	}

	bool EndsWithLineEnd(std::string_view Text)
	{
		return Text.ends_with('\n') || Text.ends_with('\r');
	}

	constexpr const char* OddLength = "begins as UTF-16 but has an odd number of bytes";
	constexpr const char* UnknownEncoding = "is neither UTF-8 nor UTF-16 with a byte-order mark";
	constexpr const char* NullCharacters = "holds null characters and so is no text (UTF-16 needs a byte-order mark)";
}

bool FTextDocument::Decode(HostFiles::FSharedBytes InBytes, std::string& OutFault, int32& OutFaultLine)
{
	Bytes = std::move(InBytes);
	Text = *Bytes;
	Encoding = TextDocument::Detect(Text);
	OutFaultLine = 0;
	if (IsConverted())
	{
		if (Text.size() % 2 != 0)
		{
			OutFault = TextDocument::OddLength;
			return false;
		}
		Converted = TextDocument::DecodeUtf16(Text, Encoding);
		Text = Converted;
	}
	const size_t Bad = IsConverted() ? Text.size() : TextCoding::FindInvalidUtf8(Text);
	const size_t Fault = std::min(Bad, Text.find('\0'));
	if (Fault != Text.size())
	{
		OutFault = Fault == Bad ? TextDocument::UnknownEncoding : TextDocument::NullCharacters;
		OutFaultLine = TextDocument::LineOf(Text, Fault);
		return false;
	}
	return true;
}

bool FTextDocument::IsConverted() const
{
	return TextDocument::IsUtf16(Encoding);
}

ELineEnd FTextDocument::GetUsualEnd() const
{
	size_t Counts[4] = {};
	for (FTextLines Lines(Text); Lines.Advance();)
	{
		++Counts[static_cast<size_t>(Lines.GetLine().End)];
	}
	ELineEnd Usual = ELineEnd::Lf;
	for (const ELineEnd Candidate : {ELineEnd::CrLf, ELineEnd::Cr})
	{
		Usual = Counts[static_cast<size_t>(Candidate)] > Counts[static_cast<size_t>(Usual)] ? Candidate : Usual;
	}
	return Usual;
}

FTextComposer::FTextComposer(const FTextDocument& InOld)
	: Old(InOld)
	, UsualEnd(InOld.GetUsualEnd())
	, bLastLineEnds(InOld.GetText().empty() || TextDocument::EndsWithLineEnd(InOld.GetText()))
{
	constexpr size_t Room = 16 * 1024; // for what is usually added
	Text.reserve(Old.GetText().size() + Room);
}

void FTextComposer::EndLine()
{
	if (!Text.empty() && LastEndLength == 0)
	{
		Text += TextDocument::ToText(UsualEnd);
	}
}

void FTextComposer::Keep(size_t Begin, size_t End)
{
	if (Begin == End)
	{
		return;
	}
	EndLine();
	Text += Old.GetText().substr(Begin, End - Begin);
	const size_t Single = TextDocument::EndsWithLineEnd(Text) ? 1 : 0;
	LastEndLength = Text.ends_with("\r\n") ? 2 : Single;
}

void FTextComposer::Add(std::string_view Line, ELineEnd End)
{
	EndLine();
	const std::string_view EndText = TextDocument::ToText(End == ELineEnd::None ? UsualEnd : End);
	Text += Line;
	Text += EndText;
	LastEndLength = EndText.size();
}

bool FTextComposer::EndsWithBlankLine() const
{
	FTextLines Lines = FTextLines::FromEnd(Text);
	return Lines.StepBack() && Lines.Get().find_first_not_of(" \t\v\f") == std::string_view::npos;
}

std::string FTextComposer::Finish()
{
	if (bLastLineEnds)
	{
		EndLine();
	}
	else
	{
		Text.resize(Text.size() - LastEndLength);
	}
	return std::move(Text);
}

bool TextEncoding::Encode(std::string Text, ETextEncoding Encoding, std::string& OutBytes)
{
	if (TextDocument::IsUtf16(Encoding))
	{
		OutBytes = TextDocument::ToMark(Encoding);
		TextDocument::AppendUtf16(Text, Encoding, OutBytes);
		return true;
	}
	OutBytes = std::move(Text);
	const bool bExpressible = TextCoding::FindInvalidUtf8(OutBytes) == OutBytes.size();
	OutBytes.insert(0, TextDocument::ToMark(Encoding));
	return bExpressible;
}
