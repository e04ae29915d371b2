// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"
#include "Misc/Char.h"

namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase
	};
}

namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd
	};
}

/** Null-terminated TCHAR strings. Nothing here accepts null. Comparisons that ignore case fold as FChar::ToLower does. */
struct FCString
{
	static int32 Strlen(const TCHAR* String);
	static int32 Stricmp(const TCHAR* A, const TCHAR* B);
	static int32 Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);
	static int32 Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);

	static const TCHAR* Stristr(const TCHAR* String, const TCHAR* Find);
	static const TCHAR* Strchr(const TCHAR* String, TCHAR Char);

	/** Numbers read from the beginning of a string, blanks skipped; 0 when there is none. */
	static int32 Atoi(const TCHAR* String);
	static int64 Atoi64(const TCHAR* String);
	static float Atof(const TCHAR* String);
	static double Atod(const TCHAR* String);

	/** Digits with at most one point and a sign in front. */
	static bool IsNumeric(const TCHAR* String);
};

struct FCStringAnsi
{
	static int32 Strlen(const ANSICHAR* String);
};
