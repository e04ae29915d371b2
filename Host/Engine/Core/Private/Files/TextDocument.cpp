// Copyright Velmorant. All Rights Reserved.

#include "Files/TextDocument.h"

#include "Files/TextCoding.h"

#include <algorithm>
#include <utility>

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

	void DecodeUtf16(std::string_view Bytes, ETextEncoding Encoding, std::vector<char16_t>& Out)
	{
		const size_t Low = Encoding == ETextEncoding::Utf16LittleEndian ? 0 : 1;
		Out.resize(Bytes.size() / 2);
		for (size_t Index = 0; Index < Out.size(); ++Index)
		{
			const auto ByteAt = [&](size_t Offset) { return static_cast<unsigned char>(Bytes[Index * 2 + Offset]); };
			Out[Index] = static_cast<char16_t>(ByteAt(Low) | (ByteAt(1 - Low) << 8));
		}
	}

	void AppendUtf16(std::u16string_view Text, ETextEncoding Encoding, std::string& Out)
	{
		const size_t Low = Encoding == ETextEncoding::Utf16LittleEndian ? 0 : 1;
		const size_t Before = Out.size();
		Out.resize(Before + Text.size() * 2);
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			Out[Before + Index * 2 + Low] = static_cast<char>(static_cast<unsigned char>(Text[Index] & 0xFF));
			Out[Before + Index * 2 + 1 - Low] = static_cast<char>(static_cast<unsigned char>(Text[Index] >> 8));
		}
	}

	std::u16string_view ToText(ELineEnd End)
	{
		switch (End)
		{
			case ELineEnd::Lf:
				return u"\n";
			case ELineEnd::CrLf:
				return u"\r\n";
			case ELineEnd::Cr:
				return u"\r";
			default:
				return u"";
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
	template<typename CharType>
	int32 LineOf(std::basic_string_view<CharType> Text, size_t At)
	{
		const std::basic_string_view<CharType> Before = Text.substr(0, At);
		return 1 + static_cast<int32>(std::count(Before.begin(), Before.end(), CharType('\n')));
	}

	constexpr const char* OddLength = "begins as UTF-16 but has an odd number of bytes";
	constexpr const char* UnknownEncoding = "is neither UTF-8 nor UTF-16 with a byte-order mark";
	constexpr const char* NullCharacters = "holds null characters and so is no text (UTF-16 needs a byte-order mark)";
}

bool FTextDocument::Decode(std::string_view Bytes, std::string& OutFault, int32& OutFaultLine)
{
	Encoding = TextDocument::Detect(Bytes);
	Lines.clear();
	OutFaultLine = 0;
	if (TextDocument::IsUtf16(Encoding))
	{
		TextDocument::DecodeUtf16(Bytes, Encoding, Units);
		if (Bytes.size() % 2 != 0)
		{
			OutFault = TextDocument::OddLength;
			return false;
		}
	}
	else
	{
		size_t BadOffset = 0;
		if (!TextCoding::DecodeUtf8(Bytes, Units, BadOffset))
		{
			OutFault = TextDocument::UnknownEncoding;
			OutFaultLine = TextDocument::LineOf(Bytes, BadOffset);
			return false;
		}
	}
	const size_t Null = GetText().find(u'\0');
	if (Null != std::u16string_view::npos)
	{
		OutFault = TextDocument::NullCharacters;
		OutFaultLine = TextDocument::LineOf(GetText(), Null);
		return false;
	}
	Lines = SplitLines(GetText());
	return true;
}

bool FTextDocument::CheckUtf8(std::string_view Bytes, std::string_view& OutUtf8, std::string& OutFault, int32& OutFaultLine)
{
	OutUtf8 = Bytes;
	if (TextDocument::IsUtf16(TextDocument::Detect(OutUtf8)))
	{
		OutFault.clear();
		return false;
	}
	const size_t Bad = TextCoding::FindInvalidUtf8(OutUtf8);
	const size_t Fault = std::min(Bad, OutUtf8.find('\0'));
	if (Fault != OutUtf8.size())
	{
		OutFault = Fault == Bad ? TextDocument::UnknownEncoding : TextDocument::NullCharacters;
		OutFaultLine = TextDocument::LineOf(OutUtf8, Fault);
		return false;
	}
	return true;
}

bool FTextDocument::Encode(std::string& OutBytes) const
{
	OutBytes = TextDocument::ToMark(Encoding);
	const bool bUtf16 = TextDocument::IsUtf16(Encoding);
	OutBytes.reserve(Units.size() * (bUtf16 ? 2 : 1));
	for (const FTextLine& Line : Lines)
	{
		for (const std::u16string_view Text : {Line.Text, TextDocument::ToText(Line.End)})
		{
			if (bUtf16)
			{
				TextDocument::AppendUtf16(Text, Encoding, OutBytes);
			}
			else if (!TextCoding::EncodeUtf8(Text, OutBytes))
			{
				return false;
			}
		}
	}
	return true;
}

ELineEnd FTextDocument::GetUsualEnd() const
{
	size_t Counts[4] = {};
	for (const FTextLine& Line : Lines)
	{
		++Counts[static_cast<size_t>(Line.End)];
	}
	ELineEnd Usual = ELineEnd::Lf;
	for (const ELineEnd Candidate : {ELineEnd::CrLf, ELineEnd::Cr})
	{
		Usual = Counts[static_cast<size_t>(Candidate)] > Counts[static_cast<size_t>(Usual)] ? Candidate : Usual;
	}
	return Usual;
}

void FTextDocument::SetLines(std::vector<FTextLine> NewLines)
{
	const ELineEnd Usual = GetUsualEnd();
	const bool bLastEnds = Lines.empty() || Lines.back().End != ELineEnd::None;
	Lines = std::move(NewLines);
	for (FTextLine& Line : Lines)
	{
		Line.End = Line.End == ELineEnd::None ? Usual : Line.End;
	}
	SetLastLineEnds(bLastEnds);
}

void FTextDocument::SetLastLineEnds(bool bEnds)
{
	if (!Lines.empty() && bEnds != (Lines.back().End != ELineEnd::None))
	{
		Lines.back().End = bEnds ? GetUsualEnd() : ELineEnd::None;
	}
}

std::vector<FTextLine> FTextDocument::KeepLineEnds(const std::vector<std::u16string_view>& Texts) const
{
	std::vector<FTextLine> Result(Texts.size());
	for (size_t Index = 0; Index < Texts.size(); ++Index)
	{
		Result[Index].Text = Texts[Index];
	}
	const size_t MaxCommon = std::min(Texts.size(), Lines.size());
	size_t Front = 0;
	while (Front < MaxCommon && Lines[Front].Text == Texts[Front])
	{
		Result[Front].End = Lines[Front].End;
		++Front;
	}
	for (size_t Back = 1; Back <= MaxCommon - Front; ++Back)
	{
		const FTextLine& Old = Lines[Lines.size() - Back];
		if (Old.Text != Texts[Texts.size() - Back])
		{
			break;
		}
		Result[Texts.size() - Back].End = Old.End;
	}
	return Result;
}

std::vector<FTextLine> FTextDocument::SplitLines(std::u16string_view Text)
{
	std::vector<FTextLine> Result;
	size_t Start = 0;
	for (size_t At = 0; At < Text.size(); ++At)
	{
		const char16_t Unit = Text[At];
		if (Unit != u'\n' && Unit != u'\r')
		{
			continue;
		}
		const bool bPair = Unit == u'\r' && At + 1 < Text.size() && Text[At + 1] == u'\n';
		const ELineEnd Single = Unit == u'\n' ? ELineEnd::Lf : ELineEnd::Cr;
		Result.push_back(FTextLine{Text.substr(Start, At - Start), bPair ? ELineEnd::CrLf : Single});
		At += bPair ? 1 : 0;
		Start = At + 1;
	}
	if (Start < Text.size())
	{
		Result.push_back(FTextLine{Text.substr(Start), ELineEnd::None});
	}
	return Result;
}
