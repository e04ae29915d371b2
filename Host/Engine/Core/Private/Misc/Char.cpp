// Copyright Velmorant. All Rights Reserved.

#include "Misc/Char.h"
#include "HostLocale.h"

#include <clocale>
#include <cwctype>
#include <locale.h>
#include <memory>

namespace CharTables
{
	/** Unicode's character classes, independent of the locale of the process. Null where the system has none. */
	locale_t CharClasses()
	{
		static const locale_t Locale = [] {
			for (const char* Name : {"C.UTF-8", "C.utf8", "en_US.UTF-8"})
			{
				if (const locale_t Found = newlocale(LC_CTYPE_MASK, Name, nullptr))
				{
					return Found;
				}
			}
			return newlocale(LC_CTYPE_MASK, "C", nullptr);
		}();
		return Locale;
	}

	/** Lower-case forms, in pages of 256 that are filled when first asked for. */
	class FLowerCase
	{
	public:
		TCHAR Get(TCHAR Char)
		{
			std::unique_ptr<TCHAR[]>& Page = Pages[Char >> 8];
			if (!Page)
			{
				Page = MakePage(Char >> 8);
			}
			return Page[Char & 0xff];
		}

	private:
		static std::unique_ptr<TCHAR[]> MakePage(uint32 PageIndex)
		{
			std::unique_ptr<TCHAR[]> Page = std::make_unique<TCHAR[]>(256);
			for (uint32 Index = 0; Index < 256; ++Index)
			{
				const uint32 Char = (PageIndex << 8) | Index;
				const bool bSurrogate = Char >= 0xd800 && Char < 0xe000;
				const uint32 Lower = bSurrogate ? Char : static_cast<uint32>(towlower_l(static_cast<wint_t>(Char), CharClasses()));
				// A letter beyond ASCII never becomes an ASCII one (the Kelvin sign, say): searches rely on it.
				Page[Index] = static_cast<TCHAR>(Lower >= 0x80 && Lower <= 0xffff ? Lower : Char);
			}
			return Page;
		}

		std::unique_ptr<TCHAR[]> Pages[256];
	};

	FLowerCase& LowerCase()
	{
		static FLowerCase* Table = new FLowerCase; // never destroyed: names are compared until the process ends
		return *Table;
	}
}

TCHAR FChar::ToLowerWide(TCHAR Char)
{
	return CharTables::LowerCase().Get(Char);
}

TCHAR FChar::ToUpper(TCHAR Char)
{
	if (Char < 0x80)
	{
		return (Char >= 'a' && Char <= 'z') ? static_cast<TCHAR>(Char - ('a' - 'A')) : Char;
	}
	const wint_t Upper = towupper_l(static_cast<wint_t>(Char), CharTables::CharClasses());
	return static_cast<TCHAR>(Upper >= 0x80 && Upper <= 0xffff ? Upper : Char);
}

bool FChar::IsUpper(TCHAR Char)
{
	return iswupper_l(static_cast<wint_t>(Char), CharTables::CharClasses()) != 0;
}

bool FChar::IsLower(TCHAR Char)
{
	return iswlower_l(static_cast<wint_t>(Char), CharTables::CharClasses()) != 0;
}

bool FChar::IsAlnum(TCHAR Char)
{
	return iswalnum_l(static_cast<wint_t>(Char), CharTables::CharClasses()) != 0;
}

bool FChar::IsWhitespaceWide(TCHAR Char)
{
	return Char == 0xa0 || iswspace_l(static_cast<wint_t>(Char), CharTables::CharClasses()) != 0;
}

bool HostLocale::UseUnicodeCharacterClasses()
{
	for (const char* Name : {"C.UTF-8", "C.utf8", "en_US.UTF-8"})
	{
		if (std::setlocale(LC_CTYPE, Name))
		{
			return true;
		}
	}
	return false;
}
