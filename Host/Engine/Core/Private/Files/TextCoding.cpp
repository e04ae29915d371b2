// Copyright Velmorant. All Rights Reserved.

#include "Files/TextCoding.h"

#include <cstdint>
#include <cstring>

namespace TextCoding
{
	constexpr size_t BlockSize = 8; // bytes looked at in one go while text is plain ASCII
	constexpr uint64_t HighBits = 0x8080808080808080ull;

	bool IsAsciiBlock(const char* Bytes)
	{
		uint64_t Block;
		std::memcpy(&Block, Bytes, BlockSize);
		return (Block & HighBits) == 0;
	}

	bool IsContinuation(unsigned char Byte)
	{
		return (Byte & 0xC0) == 0x80;
	}

	/** Of the bytes that begin with First, which is no ASCII; 0 when none do. */
	size_t GetSequenceLength(unsigned char First)
	{
		if (First < 0xC2 || First >= 0xF5)
		{
			return 0;
		}
		return 2 + (First >= 0xE0 ? 1 : 0) + (First >= 0xF0 ? 1 : 0);
	}

	/** Number of bytes of the character that starts here, and its code point; 0 when it is not well-formed. */
	size_t DecodeOne(std::string_view Bytes, size_t At, char32_t& OutCode, EHalfPairs HalfPairs = EHalfPairs::Refuse)
	{
		const auto ByteAt = [&](size_t Index) { return static_cast<unsigned char>(Bytes[Index]); };
		const unsigned char First = ByteAt(At);
		if (First < 0x80)
		{
			OutCode = First;
			return 1;
		}
		const size_t Length = GetSequenceLength(First);
		if (Length == 0 || At + Length > Bytes.size())
		{
			return 0;
		}
		char32_t Code = First & (0xFF >> (Length + 1));
		for (size_t Index = At + 1; Index < At + Length; ++Index)
		{
			if (!IsContinuation(ByteAt(Index)))
			{
				return 0;
			}
			Code = (Code << 6) | (ByteAt(Index) & 0x3F);
		}
		const bool bOverlong = (Length == 3 && Code < 0x800) || (Length == 4 && Code < 0x10000);
		const bool bSurrogate = HalfPairs == EHalfPairs::Refuse && Code >= 0xD800 && Code <= 0xDFFF;
		OutCode = Code;
		return bOverlong || bSurrogate || Code > 0x10FFFF ? 0 : Length;
	}

	/** Appends the ASCII characters from At on. @return where they end */
	size_t AppendAscii(std::u16string_view Text, size_t At, std::string& Out)
	{
		size_t End = At;
		while (End < Text.size() && Text[End] < 0x80)
		{
			++End;
		}
		const size_t Before = Out.size();
		Out.resize(Before + (End - At));
		char* Byte = Out.data() + Before;
		for (size_t Index = At; Index < End; ++Index)
		{
			*Byte++ = static_cast<char>(Text[Index]);
		}
		return End;
	}

	void AppendCode(char32_t Code, std::string& Out)
	{
		const auto Append = [&Out](char32_t Byte) { Out.push_back(static_cast<char>(static_cast<unsigned char>(Byte))); };
		if (Code < 0x800)
		{
			Append(0xC0 | (Code >> 6));
		}
		else if (Code < 0x10000)
		{
			Append(0xE0 | (Code >> 12));
			Append(0x80 | ((Code >> 6) & 0x3F));
		}
		else
		{
			Append(0xF0 | (Code >> 18));
			Append(0x80 | ((Code >> 12) & 0x3F));
			Append(0x80 | ((Code >> 6) & 0x3F));
		}
		Append(0x80 | (Code & 0x3F));
	}

	size_t FindInvalidUtf8(std::string_view Bytes)
	{
		size_t At = 0;
		while (At < Bytes.size())
		{
			if (At + BlockSize <= Bytes.size() && IsAsciiBlock(Bytes.data() + At))
			{
				At += BlockSize;
				continue;
			}
			char32_t Code = 0;
			const size_t Length = DecodeOne(Bytes, At, Code);
			if (Length == 0)
			{
				return At;
			}
			At += Length;
		}
		return Bytes.size();
	}

	bool DecodeUtf8(std::string_view Bytes, std::vector<char16_t>& Out, size_t& OutBadOffset, EHalfPairs HalfPairs)
	{
		Out.resize(Bytes.size()); // never fewer bytes than units
		char16_t* Unit = Out.data();
		size_t At = 0;
		while (At < Bytes.size())
		{
			if (At + BlockSize <= Bytes.size() && IsAsciiBlock(Bytes.data() + At))
			{
				for (size_t Index = 0; Index < BlockSize; ++Index)
				{
					Unit[Index] = static_cast<char16_t>(static_cast<unsigned char>(Bytes[At + Index]));
				}
				Unit += BlockSize;
				At += BlockSize;
				continue;
			}
			char32_t Code = 0;
			const size_t Length = DecodeOne(Bytes, At, Code, HalfPairs);
			if (Length == 0)
			{
				break;
			}
			At += Length;
			if (Code >= 0x10000)
			{
				*Unit++ = static_cast<char16_t>(0xD800 + ((Code - 0x10000) >> 10));
				*Unit++ = static_cast<char16_t>(0xDC00 + ((Code - 0x10000) & 0x3FF));
			}
			else
			{
				*Unit++ = static_cast<char16_t>(Code);
			}
		}
		Out.resize(static_cast<size_t>(Unit - Out.data()));
		OutBadOffset = At;
		return At == Bytes.size();
	}

	bool EncodeUtf8(std::u16string_view Text, std::string& Out, EHalfPairs HalfPairs)
	{
		for (size_t At = AppendAscii(Text, 0, Out); At < Text.size(); At = AppendAscii(Text, At + 1, Out))
		{
			const char16_t Unit = Text[At];
			if (Unit < 0xD800 || Unit > 0xDFFF)
			{
				AppendCode(Unit, Out);
				continue;
			}
			const bool bPair = Unit < 0xDC00 && At + 1 < Text.size() && Text[At + 1] >= 0xDC00 && Text[At + 1] <= 0xDFFF;
			if (!bPair)
			{
				if (HalfPairs == EHalfPairs::Refuse)
				{
					return false;
				}
				AppendCode(Unit, Out);
				continue;
			}
			AppendCode(0x10000 + ((char32_t(Unit) - 0xD800) << 10) + (char32_t(Text[At + 1]) - 0xDC00), Out);
			++At;
		}
		return true;
	}

	bool IsAscii(std::string_view Text)
	{
		unsigned char All = 0;
		for (const char Byte : Text)
		{
			All = static_cast<unsigned char>(All | static_cast<unsigned char>(Byte));
		}
		return All < 0x80;
	}

	FString ToFString(std::string_view Utf8)
	{
		std::vector<char16_t> Units;
		size_t BadOffset = 0;
		if (!DecodeUtf8(Utf8, Units, BadOffset))
		{
			Units.push_back(Replacement);
		}
		return FString(static_cast<int32>(Units.size()), Units.data());
	}
}
