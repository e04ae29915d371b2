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
	static int32 Strcmp(const TCHAR* A, const TCHAR* B);
	static int32 Stricmp(const TCHAR* A, const TCHAR* B);
	static int32 Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);
	static int32 Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);

	/** Copies at most DestSize - 1 characters and always terminates Dest. */
	static TCHAR* Strncpy(TCHAR* Dest, const TCHAR* Source, int32 DestSize);

	/** The first place of Find in String, or null. */
	static const TCHAR* Strstr(const TCHAR* String, const TCHAR* Find);
	static const TCHAR* Stristr(const TCHAR* String, const TCHAR* Find);
	static const TCHAR* Strchr(const TCHAR* String, TCHAR Char);
	static const TCHAR* Strrchr(const TCHAR* String, TCHAR Char);

	/** Numbers read from the beginning of a string, blanks skipped; 0 when there is none. */
	static int32 Atoi(const TCHAR* String);
	static int64 Atoi64(const TCHAR* String);
	static float Atof(const TCHAR* String);
	static double Atod(const TCHAR* String);
	static int32 Strtoi(const TCHAR* Start, TCHAR** End, int32 Base);
	static int64 Strtoi64(const TCHAR* Start, TCHAR** End, int32 Base);
	static uint64 Strtoui64(const TCHAR* Start, TCHAR** End, int32 Base);

	/** "True", "Yes", "On" in any case, or a number other than 0. */
	static bool ToBool(const TCHAR* String);

	/** Digits with at most one point and a sign in front. */
	static bool IsNumeric(const TCHAR* String);
};

struct FCStringAnsi
{
	static int32 Strlen(const ANSICHAR* String);
	static int32 Strcmp(const ANSICHAR* A, const ANSICHAR* B);
	static int32 Stricmp(const ANSICHAR* A, const ANSICHAR* B);
};
