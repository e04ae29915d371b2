// Copyright Velmorant. All Rights Reserved.

#include "Internationalization/Text.h"

namespace TextStringHelper
{
	void WriteQuoted(FString& Buffer, const FString& String)
	{
		Buffer.AppendChar('"');
		Buffer += String.ReplaceCharWithEscapedChar();
		Buffer.AppendChar('"');
	}

	void SkipBlanks(const TCHAR*& At)
	{
		while (FChar::IsWhitespace(*At))
		{
			++At;
		}
	}

	/** Moves past Token and the blanks before it, or stays. */
	bool Read(const TCHAR*& At, const TCHAR* Token)
	{
		const TCHAR* Probe = At;
		SkipBlanks(Probe);
		const int32 Len = FCString::Strlen(Token);
		if (FCString::Strncmp(Probe, Token, Len) != 0)
		{
			return false;
		}
		At = Probe + Len;
		return true;
	}

	bool ReadQuoted(const TCHAR*& At, FString& Out)
	{
		const TCHAR* Probe = At;
		if (!Read(Probe, TEXT("\"")))
		{
			return false;
		}
		const TCHAR* const Begin = Probe;
		while (*Probe && *Probe != '"')
		{
			Probe += (*Probe == '\\' && Probe[1]) ? 2 : 1;
		}
		if (!*Probe)
		{
			return false;
		}
		Out = FString::ConstructFromPtrSize(Begin, static_cast<int32>(Probe - Begin)).ReplaceEscapedCharWithChar();
		At = Probe + 1;
		return true;
	}

	/** The quoted strings of a macro call, comma separated, with the closing parenthesis. */
	bool ReadArguments(const TCHAR*& At, FString* Out, int32 Num)
	{
		for (int32 Index = 0; Index < Num; ++Index)
		{
			if ((Index > 0 && !Read(At, TEXT(","))) || !ReadQuoted(At, Out[Index]))
			{
				return false;
			}
		}
		return Read(At, TEXT(")"));
	}
}

void FTextStringHelper::WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes)
{
	const TOptional<FString> Key = FTextInspector::GetKey(Value);
	if (Key.IsSet())
	{
		Buffer += TEXT("NSLOCTEXT(");
		TextStringHelper::WriteQuoted(Buffer, FTextInspector::GetNamespace(Value).GetValue());
		Buffer += TEXT(", ");
		TextStringHelper::WriteQuoted(Buffer, Key.GetValue());
		Buffer += TEXT(", ");
		TextStringHelper::WriteQuoted(Buffer, Value.ToString());
		Buffer += TEXT(")");
	}
	else if (Value.IsCultureInvariant())
	{
		Buffer += TEXT("INVTEXT(");
		TextStringHelper::WriteQuoted(Buffer, Value.ToString());
		Buffer += TEXT(")");
	}
	else if (bRequiresQuotes)
	{
		TextStringHelper::WriteQuoted(Buffer, Value.ToString());
	}
	else
	{
		Buffer += Value.ToString();
	}
}

const TCHAR* FTextStringHelper::ReadFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace, const TCHAR*, bool bRequiresQuotes)
{
	FString Arguments[3];
	const TCHAR* At = Buffer;
	if (TextStringHelper::Read(At, TEXT("NSLOCTEXT(")) && TextStringHelper::ReadArguments(At, Arguments, 3))
	{
		OutValue = FText::AsLocalizable_Advanced(Arguments[0], Arguments[1], *Arguments[2]);
		return At;
	}
	At = Buffer;
	if (TextStringHelper::Read(At, TEXT("LOCTEXT(")) && TextStringHelper::ReadArguments(At, Arguments, 2))
	{
		OutValue = FText::AsLocalizable_Advanced(TextNamespace, Arguments[0], *Arguments[1]);
		return At;
	}
	At = Buffer;
	if (TextStringHelper::Read(At, TEXT("INVTEXT(")) && TextStringHelper::ReadArguments(At, Arguments, 1))
	{
		OutValue = FText::AsCultureInvariant(*Arguments[0]);
		return At;
	}
	At = Buffer;
	if (bRequiresQuotes)
	{
		if (!TextStringHelper::ReadQuoted(At, Arguments[0]))
		{
			return nullptr;
		}
		OutValue = FText::FromString(MoveTemp(Arguments[0]));
		return At;
	}
	OutValue = FText::FromString(FString(Buffer));
	return Buffer + FCString::Strlen(Buffer);
}
