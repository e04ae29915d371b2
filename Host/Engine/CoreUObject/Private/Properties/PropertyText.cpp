// Copyright Velmorant. All Rights Reserved.

#include "Properties/PropertyText.h"

#include "Containers/StringConv.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "UObject/PropertyPortFlags.h"

#include <cerrno>
#include <cstdlib>

namespace PropertyText
{
	void AppendQuoted(FString& Out, const FString& Text)
	{
		Out += TEXT('"');
		for (const TCHAR Character : Text)
		{
			switch (Character)
			{
				case TEXT('"'):
					Out += TEXT("\\\"");
					break;
				case TEXT('\\'):
					Out += TEXT("\\\\");
					break;
				case TEXT('\''):
					Out += TEXT("\\'");
					break;
				case TEXT('\n'):
					Out += TEXT("\\n");
					break;
				case TEXT('\r'):
					Out += TEXT("\\r");
					break;
				case TEXT('\t'):
					Out += TEXT("\\t");
					break;
				default:
					Out += Character;
			}
		}
		Out += TEXT('"');
	}

	/** What a backslash and this character stand for. */
	TCHAR Unescape(TCHAR Character)
	{
		switch (Character)
		{
			case TEXT('n'): return TEXT('\n');
			case TEXT('r'): return TEXT('\r');
			case TEXT('t'): return TEXT('\t');
			default: return Character;
		}
	}

	const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& OutText)
	{
		OutText.Reset();
		for (++Buffer; *Buffer; ++Buffer)
		{
			if (*Buffer == TEXT('"'))
			{
				return Buffer + 1;
			}
			if (*Buffer != TEXT('\\') || !Buffer[1])
			{
				OutText += *Buffer;
				continue;
			}
			++Buffer;
			OutText += Unescape(*Buffer);
		}
		return nullptr;
	}

	const TCHAR* ReadText(const TCHAR* Buffer, int32 PortFlags, FString& OutText)
	{
		if (!(PortFlags & PPF_Delimited))
		{
			OutText = Buffer;
			return Buffer + OutText.Len();
		}
		if (*Buffer == TEXT('"'))
		{
			return ReadQuoted(Buffer, OutText);
		}
		const TCHAR* Start = Buffer;
		bool bInQuotes = false;
		for (; *Buffer && (bInQuotes || (*Buffer != TEXT(',') && *Buffer != TEXT(')'))); ++Buffer)
		{
			bInQuotes = bInQuotes != (*Buffer == TEXT('\''));
		}
		OutText = FString::ConstructFromPtrSize(Start, static_cast<int32>(Buffer - Start)).TrimStartAndEnd();
		return bInQuotes ? nullptr : Buffer;
	}

	const TCHAR* ReadWord(const TCHAR* Buffer, FString& OutWord)
	{
		if (*Buffer == TEXT('"'))
		{
			return ReadQuoted(Buffer, OutWord);
		}
		const TCHAR* Start = Buffer;
		while (FChar::IsAlnum(*Buffer) || (*Buffer && FCString::Strchr(TEXT("_-+.:/"), *Buffer)))
		{
			++Buffer;
		}
		OutWord = FString::ConstructFromPtrSize(Start, static_cast<int32>(Buffer - Start));
		return Buffer == Start ? nullptr : Buffer;
	}

	const TCHAR* SkipBlanks(const TCHAR* Buffer)
	{
		while (FChar::IsWhitespace(*Buffer))
		{
			++Buffer;
		}
		return Buffer;
	}

	bool ParseInteger(const FString& Text, int64& OutValue)
	{
		const auto Utf8 = StringCast<ANSICHAR>(*Text);
		const char* Start = Utf8.Get();
		char* End = nullptr;
		errno = 0;
		OutValue = *Start == '-' ? std::strtoll(Start, &End, 0) : static_cast<int64>(std::strtoull(Start, &End, 0));
		return End != Start && *End == 0 && errno == 0;
	}

	bool ParseFloat(const FString& Text, double& OutValue)
	{
		const auto Utf8 = StringCast<ANSICHAR>(*Text);
		const char* Start = Utf8.Get();
		char* End = nullptr;
		OutValue = std::strtod(Start, &End);
		return End != Start && (*End == 0 || (*End == 'f' && End[1] == 0));
	}

	FString StripClass(const FString& Text)
	{
		int32 Quote = INDEX_NONE;
		if (Text.FindChar(TEXT('\''), Quote) && Text.EndsWith(TEXT("'")) && Quote < Text.Len() - 1)
		{
			return Text.Mid(Quote + 1, Text.Len() - Quote - 2);
		}
		return Text;
	}
}
