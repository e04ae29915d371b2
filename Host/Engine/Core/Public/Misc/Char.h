// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/**
 * Questions about one character. Above ASCII the answers are those of Unicode, whatever locale the process runs in;
 * halves of surrogate pairs belong to no class and have no case.
 */
struct FChar
{
	static TCHAR ToLower(TCHAR Char) { return Char < 0x80 ? ToLowerAscii(Char) : ToLowerWide(Char); }
	static TCHAR ToUpper(TCHAR Char);

	static bool IsUpper(TCHAR Char);
	static bool IsLower(TCHAR Char);
	static bool IsAlnum(TCHAR Char);
	static bool IsDigit(TCHAR Char) { return Char >= '0' && Char <= '9'; }
	static bool IsHexDigit(TCHAR Char) { return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F'); }
	static bool IsWhitespace(TCHAR Char) { return Char < 0x80 ? (Char == ' ' || (Char >= 0x09 && Char <= 0x0d)) : IsWhitespaceWide(Char); }

	/** The value of a decimal digit; of nothing else. */
	static int32 ConvertCharDigitToInt(TCHAR Char) { return static_cast<int32>(Char) - '0'; }

private:
	static constexpr TCHAR ToLowerAscii(TCHAR Char) { return (Char >= 'A' && Char <= 'Z') ? static_cast<TCHAR>(Char + ('a' - 'A')) : Char; }
	static TCHAR ToLowerWide(TCHAR Char);
	static bool IsWhitespaceWide(TCHAR Char);
};
