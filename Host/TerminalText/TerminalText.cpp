// Copyright Velmorant. All Rights Reserved.

#include "TerminalText.h"

#include <algorithm>
#include <cstdio>

namespace TerminalText
{
	struct FCharacter
	{
		char32_t Code = 0;
		size_t Length = 0; // in bytes; 0 for what is no UTF-8
	};

	FCharacter Decode(std::string_view Text)
	{
		const auto ByteAt = [Text](size_t Index) { return static_cast<unsigned char>(Text[Index]); };
		const unsigned char First = ByteAt(0);
		if (First < 0x80)
		{
			return {First, 1};
		}
		if (First < 0xC2 || First >= 0xF5)
		{
			return {};
		}
		const size_t Length = static_cast<size_t>(2 + (First >= 0xE0) + (First >= 0xF0));
		char32_t Code = First & (0xFFu >> (Length + 1));
		for (size_t Index = 1; Index < Length; ++Index)
		{
			if (Index >= Text.size() || (ByteAt(Index) & 0xC0) != 0x80)
			{
				return {};
			}
			Code = (Code << 6) | (ByteAt(Index) & 0x3Fu);
		}
		const bool bOverlong = (Length == 3 && Code < 0x800) || (Length == 4 && Code < 0x10000);
		const bool bSurrogate = Code >= 0xD800 && Code <= 0xDFFF;
		return bOverlong || bSurrogate || Code > 0x10FFFF ? FCharacter{} : FCharacter{Code, Length};
	}

	bool IsControl(char32_t Code)
	{
		return Code < 0x20 || (Code >= 0x7F && Code < 0xA0);
	}

	/** Marks that reorder what is shown, and separators that a terminal may take for line ends. */
	bool IsDirectionOrSeparator(char32_t Code)
	{
		return Code == 0x061C || Code == 0x200E || Code == 0x200F || (Code >= 0x2028 && Code <= 0x202E) || (Code >= 0x2066 && Code <= 0x2069);
	}

	void AppendNumber(const char* Format, unsigned Number, std::string& Out)
	{
		char Buffer[16];
		std::snprintf(Buffer, sizeof(Buffer), Format, Number);
		Out += Buffer;
	}

	bool IsPlain(char Byte)
	{
		return Byte >= ' ' && Byte < 0x7F;
	}

	std::string Escape(std::string_view Text, ELineFeeds LineFeeds)
	{
		std::string Out;
		Out.reserve(Text.size());
		while (!Text.empty())
		{
			const size_t Plain = static_cast<size_t>(std::find_if_not(Text.begin(), Text.end(), &IsPlain) - Text.begin());
			Out += Text.substr(0, Plain);
			Text.remove_prefix(Plain);
			if (Text.empty())
			{
				break;
			}
			const FCharacter Character = Decode(Text);
			const size_t Length = std::max<size_t>(Character.Length, 1);
			const bool bLayout = Text.front() == '\t' || (Text.front() == '\n' && LineFeeds == ELineFeeds::Keep);
			if (Character.Length == 0 || (IsControl(Character.Code) && !bLayout))
			{
				AppendNumber("\\x%02x", Character.Length == 0 ? static_cast<unsigned char>(Text.front()) : static_cast<unsigned>(Character.Code), Out);
			}
			else if (IsDirectionOrSeparator(Character.Code))
			{
				AppendNumber("\\u%04x", static_cast<unsigned>(Character.Code), Out);
			}
			else
			{
				Out += Text.substr(0, Length);
			}
			Text.remove_prefix(Length);
		}
		return Out;
	}
}
