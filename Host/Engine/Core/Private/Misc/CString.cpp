// Copyright Velmorant. All Rights Reserved.

#include "Misc/CString.h"

#include <cstdlib>
#include <cstring>
#include <strings.h>

namespace CStringPrivate
{
	/** The beginning of a string that can be part of a number, as the C library wants it; the rest does not matter to it. */
	class FNumberText
	{
	public:
		explicit FNumberText(const TCHAR* String)
		{
			while (FChar::IsWhitespace(*String))
			{
				++String;
				++Skipped;
			}
			while (Len < MaxLen && String[Len] > 0 && String[Len] < 0x80)
			{
				Text[Len] = static_cast<char>(String[Len]);
				++Len;
			}
			Text[Len] = 0;
		}

		const char* Get() const { return Text; }

	private:
		static constexpr int32 MaxLen = 400; // the longest finite double has 309 digits before the point

		char Text[MaxLen + 1];
		int32 Len = 0;
		int32 Skipped = 0;
	};

	template<typename FoldType>
	int32 CompareFolded(const TCHAR* A, const TCHAR* B, SIZE_T Count, FoldType Fold)
	{
		for (; Count > 0; ++A, ++B, --Count)
		{
			const TCHAR CharA = Fold(*A);
			const TCHAR CharB = Fold(*B);
			if (CharA != CharB)
			{
				return static_cast<int32>(CharA) - static_cast<int32>(CharB);
			}
			if (!CharA)
			{
				break;
			}
		}
		return 0;
	}

	TCHAR Same(TCHAR Char)
	{
		return Char;
	}
}

int32 FCString::Strlen(const TCHAR* String)
{
	const TCHAR* End = String;
	while (*End)
	{
		++End;
	}
	return static_cast<int32>(End - String);
}

int32 FCString::Stricmp(const TCHAR* A, const TCHAR* B)
{
	return CStringPrivate::CompareFolded(A, B, SIZE_MAX, FChar::ToLower);
}

int32 FCString::Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return CStringPrivate::CompareFolded(A, B, Count, CStringPrivate::Same);
}

int32 FCString::Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return CStringPrivate::CompareFolded(A, B, Count, FChar::ToLower);
}

const TCHAR* FCString::Stristr(const TCHAR* String, const TCHAR* Find)
{
	const SIZE_T Len = Strlen(Find);
	for (;; ++String)
	{
		if (Strnicmp(String, Find, Len) == 0)
		{
			return String;
		}
		if (!*String)
		{
			return nullptr;
		}
	}
}

const TCHAR* FCString::Strchr(const TCHAR* String, TCHAR Char)
{
	for (;; ++String)
	{
		if (*String == Char)
		{
			return String;
		}
		if (!*String)
		{
			return nullptr;
		}
	}
}

int32 FCString::Atoi(const TCHAR* String)
{
	return static_cast<int32>(Atoi64(String));
}

int64 FCString::Atoi64(const TCHAR* String)
{
	return std::strtoll(CStringPrivate::FNumberText(String).Get(), nullptr, 10);
}

float FCString::Atof(const TCHAR* String)
{
	return std::strtof(CStringPrivate::FNumberText(String).Get(), nullptr);
}

double FCString::Atod(const TCHAR* String)
{
	return std::strtod(CStringPrivate::FNumberText(String).Get(), nullptr);
}

bool FCString::IsNumeric(const TCHAR* String)
{
	if (*String == '-' || *String == '+')
	{
		++String;
	}
	bool bPoint = false;
	bool bDigit = false;
	for (; *String; ++String)
	{
		if (*String == '.' && !bPoint)
		{
			bPoint = true;
		}
		else if (FChar::IsDigit(*String))
		{
			bDigit = true;
		}
		else
		{
			return false;
		}
	}
	return bDigit;
}

int32 FCStringAnsi::Strlen(const ANSICHAR* String)
{
	return static_cast<int32>(std::strlen(String));
}
