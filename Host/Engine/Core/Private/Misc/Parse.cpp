// Copyright Velmorant. All Rights Reserved.

#include "Misc/Parse.h"

namespace Parse
{
	/** Behind the first place of Match that does not continue a word; null when there is none. */
	const TCHAR* FindBehind(const TCHAR* Stream, const TCHAR* Match)
	{
		for (const TCHAR* At = Stream; (At = FCString::Stristr(At, Match)) != nullptr; ++At)
		{
			if (At == Stream || !FChar::IsAlnum(At[-1]))
			{
				return At + FCString::Strlen(Match);
			}
		}
		return nullptr;
	}

	template<typename ValueType, typename ReadType>
	bool ReadNumber(const TCHAR* Stream, const TCHAR* Match, ValueType& Value, ReadType Read)
	{
		const TCHAR* const At = FindBehind(Stream, Match);
		if (!At)
		{
			return false;
		}
		Value = static_cast<ValueType>(Read(At));
		return true;
	}
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator)
{
	const TCHAR* At = Parse::FindBehind(Stream, Match);
	if (!At)
	{
		return false;
	}
	if (*At == '"')
	{
		const TCHAR* const Close = FCString::Strchr(At + 1, '"');
		Value = Close ? FString::ConstructFromPtrSize(At + 1, static_cast<int32>(Close - At - 1)) : FString(At + 1);
		return true;
	}
	const TCHAR* End = At;
	while (*End && !FChar::IsWhitespace(*End) && !(bShouldStopOnSeparator && (*End == ',' || *End == ')')))
	{
		++End;
	}
	Value = FString::ConstructFromPtrSize(At, static_cast<int32>(End - At));
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FName& Name)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	Name = FName(*Text);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int8& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atoi);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int32& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atoi);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int64& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atoi64);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atoi);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atoi64);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, float& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atof);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, double& Value)
{
	return Parse::ReadNumber(Stream, Match, Value, FCString::Atod);
}

bool FParse::Param(const TCHAR* Stream, const TCHAR* Param)
{
	const int32 Len = FCString::Strlen(Param);
	for (const TCHAR* At = Stream; (At = FCString::Stristr(At, Param)) != nullptr; ++At)
	{
		const bool bSwitch = At > Stream && (At[-1] == '-' || At[-1] == '/') && (At == Stream + 1 || FChar::IsWhitespace(At[-2]));
		const bool bWholeWord = At[Len] == 0 || FChar::IsWhitespace(At[Len]);
		if (Len > 0 && bSwitch && bWholeWord)
		{
			return true;
		}
		if (!*At)
		{
			break;
		}
	}
	return false;
}
