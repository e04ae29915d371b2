// Copyright Velmorant. All Rights Reserved.

#include "Containers/UnrealString.h"

#include "Containers/StringConv.h"
#include "Math/UnrealMathUtility.h"
#include "String/FormatMessage.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace UnrealString
{
	constexpr std::ptrdiff_t BlockSize = 64;

	// Without branches, so that the compiler makes them work on many characters at once.

	bool IsAscii(const TCHAR* Begin, const TCHAR* End)
	{
		TCHAR All = 0;
		for (; Begin < End; ++Begin)
		{
			All = static_cast<TCHAR>(All | *Begin);
		}
		return All < 0x80;
	}

	void MakeAsciiLower(TCHAR* Begin, const TCHAR* End)
	{
		for (; Begin < End; ++Begin)
		{
			const bool bUpper = *Begin >= 'A' && *Begin <= 'Z';
			*Begin = static_cast<TCHAR>(*Begin + (bUpper ? 'a' - 'A' : 0));
		}
	}
}

FString::FString(const TCHAR* InText)
	: FString(FStringView(InText))
{
}

FString::FString(const ANSICHAR* InText)
{
	const FUTF8ToTCHAR Text(InText);
	Append(Text.Get(), Text.Length());
}

FString::FString(int32 InCount, const TCHAR* InText)
	: FString(FStringView(InText, InCount))
{
}

FString::FString(FStringView InText)
{
	Append(InText.GetData(), InText.Len());
}

FString& FString::operator=(const TCHAR* InText)
{
	return *this = FStringView(InText);
}

FString& FString::operator=(FStringView InText)
{
	// Through a copy: the view may show a part of this very string.
	FString Copy(InText);
	*this = MoveTemp(Copy);
	return *this;
}

FString& FString::Append(const TCHAR* Text, int32 Count)
{
	if (Count <= 0)
	{
		return *this;
	}
	const int32 OldLen = Len();
	const bool bOwnText = Text >= Data.GetData() && Text < Data.GetData() + OldLen;
	const SSIZE_T Offset = bOwnText ? Text - Data.GetData() : 0;
	Data.AddUninitialized(Count + (Data.Num() == 0 ? 1 : 0));
	TCHAR* const Characters = Data.GetData();
	std::memmove(Characters + OldLen, bOwnText ? Characters + Offset : Text, Count * sizeof(TCHAR));
	Characters[OldLen + Count] = 0;
	return *this;
}

void FString::AppendInt(int32 Number)
{
	char Digits[12];
	const std::to_chars_result Result = std::to_chars(Digits, Digits + sizeof(Digits), Number);
	for (const char* Digit = Digits; Digit < Result.ptr; ++Digit)
	{
		AppendChar(static_cast<TCHAR>(*Digit));
	}
}

void FString::InsertAt(int32 Index, TCHAR Char)
{
	InsertAt(Index, Chr(Char));
}

void FString::InsertAt(int32 Index, const FString& Text)
{
	check(Index >= 0 && Index <= Len());
	FString Result = Left(Index);
	Result += Text;
	Result += FStringView(*this).RightChop(Index);
	*this = MoveTemp(Result);
}

void FString::RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking)
{
	check(Index >= 0 && Count >= 0 && Index + Count <= Len());
	if (Count > 0)
	{
		Data.RemoveAt(Index, Count, AllowShrinking);
	}
}

bool FString::RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase)
{
	if (Prefix.IsEmpty() || !StartsWith(Prefix, SearchCase))
	{
		return false;
	}
	RightChopInline(Prefix.Len());
	return true;
}

bool FString::RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase)
{
	if (Suffix.IsEmpty() || !EndsWith(Suffix, SearchCase))
	{
		return false;
	}
	LeftChopInline(Suffix.Len());
	return true;
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return UE::String::Private::Equals(**this, Len(), *Other, Other.Len(), SearchCase);
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return UE::String::Private::Compare(**this, Len(), *Other, Other.Len(), SearchCase);
}

bool FString::Split(const FString& Separator, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Index = Find(Separator, SearchCase, SearchDir);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	// Both parts first: an output, or the separator, may be this string.
	FString NewLeft = Left(Index);
	FString NewRight = RightChop(Index + Separator.Len());
	if (LeftS)
	{
		*LeftS = MoveTemp(NewLeft);
	}
	if (RightS)
	{
		*RightS = MoveTemp(NewRight);
	}
	return true;
}

void FString::LeftInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Kept = FMath::Clamp(Count, 0, Len());
	RemoveAt(Kept, Len() - Kept, AllowShrinking);
}

void FString::RightChopInline(int32 Count, EAllowShrinking AllowShrinking)
{
	RemoveAt(0, FMath::Clamp(Count, 0, Len()), AllowShrinking);
}

int32 FString::ParseIntoArray(TArray<FString>& Out, const TCHAR* Delimiter, bool InCullEmpty) const
{
	const FString Source = *this; // Out may hold this very string
	const FStringView DelimiterView(Delimiter);
	Out.Reset();
	FStringView Rest(Source);
	while (!DelimiterView.IsEmpty())
	{
		const int32 Index = Rest.Find(DelimiterView);
		if (Index == INDEX_NONE)
		{
			break;
		}
		if (Index > 0 || !InCullEmpty)
		{
			Out.Emplace(Rest.Left(Index));
		}
		Rest = Rest.RightChop(Index + DelimiterView.Len());
	}
	// An empty string has no parts at all; behind a last delimiter there is one.
	if (!Rest.IsEmpty() || (!InCullEmpty && !Source.IsEmpty()))
	{
		Out.Emplace(Rest);
	}
	return Out.Num();
}

int32 FString::ParseIntoArrayLines(TArray<FString>& Out, bool InCullEmpty) const
{
	const FString Source = *this;
	Out.Reset();
	FStringView Rest(Source);
	while (!Rest.IsEmpty())
	{
		int32 LineLen = 0;
		while (LineLen < Rest.Len() && Rest[LineLen] != '\r' && Rest[LineLen] != '\n')
		{
			++LineLen;
		}
		if (LineLen > 0 || !InCullEmpty)
		{
			Out.Emplace(Rest.Left(LineLen));
		}
		Rest = Rest.RightChop(LineLen);
		Rest = Rest.RightChop(Rest.StartsWith(TEXT("\r\n")) ? 2 : 1);
	}
	return Out.Num();
}

int32 FString::ParseIntoArrayWS(TArray<FString>& Out) const
{
	const FString Source = *this;
	Out.Reset();
	FStringView Rest = FStringView(Source).TrimStart();
	while (!Rest.IsEmpty())
	{
		int32 WordLen = 0;
		while (WordLen < Rest.Len() && !FChar::IsWhitespace(Rest[WordLen]))
		{
			++WordLen;
		}
		Out.Emplace(Rest.Left(WordLen));
		Rest = Rest.RightChop(WordLen).TrimStart();
	}
	return Out.Num();
}

FString FString::ToLower() const&
{
	FString Result = *this;
	Result.ToLowerInline();
	return Result;
}

FString FString::ToLower() &&
{
	ToLowerInline();
	return MoveTemp(*this);
}

FString FString::ToUpper() const&
{
	FString Result = *this;
	Result.ToUpperInline();
	return Result;
}

FString FString::ToUpper() &&
{
	ToUpperInline();
	return MoveTemp(*this);
}

void FString::ToLowerInline()
{
	TCHAR* const End = end();
	for (TCHAR* At = begin(); At < End;)
	{
		TCHAR* const BlockEnd = End - At < UnrealString::BlockSize ? End : At + UnrealString::BlockSize;
		if (UnrealString::IsAscii(At, BlockEnd))
		{
			UnrealString::MakeAsciiLower(At, BlockEnd);
		}
		else
		{
			std::transform(At, BlockEnd, At, &FChar::ToLower);
		}
		At = BlockEnd;
	}
}

void FString::ToUpperInline()
{
	for (TCHAR& Char : *this)
	{
		Char = FChar::ToUpper(Char);
	}
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const
{
	FString Result = *this;
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

int32 FString::ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase)
{
	const FStringView FromView(From);
	const FStringView ToView(To);
	int32 Found = FromView.IsEmpty() ? INDEX_NONE : Find(FromView, SearchCase);
	if (Found == INDEX_NONE)
	{
		return 0;
	}
	FString Result;
	Result.Reserve(Len());
	int32 NumReplaced = 0;
	FStringView Rest(*this);
	while (Found != INDEX_NONE)
	{
		Result += Rest.Left(Found);
		Result += ToView;
		Rest = Rest.RightChop(Found + FromView.Len());
		++NumReplaced;
		Found = Rest.Find(FromView, 0, SearchCase);
	}
	Result += Rest;
	*this = MoveTemp(Result);
	return NumReplaced;
}

namespace UnrealString
{
	// The character behind the backslash, and what it stands for.
	constexpr TCHAR Escapes[][2] = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\'', '\''}, {'"', '"'}, {'\\', '\\'}};
}

FString FString::ReplaceCharWithEscapedChar() const
{
	FString Result;
	Result.Reserve(Len());
	for (const TCHAR Char : *this)
	{
		TCHAR Letter = 0;
		for (const auto& Escape : UnrealString::Escapes)
		{
			Letter = Escape[1] == Char ? Escape[0] : Letter;
		}
		if (Letter)
		{
			Result.AppendChar('\\');
		}
		Result.AppendChar(Letter ? Letter : Char);
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar() const
{
	FString Result;
	Result.Reserve(Len());
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		const TCHAR Char = (*this)[Index];
		TCHAR Meaning = 0;
		if (Char == '\\' && Index + 1 < Len())
		{
			for (const auto& Escape : UnrealString::Escapes)
			{
				Meaning = Escape[0] == (*this)[Index + 1] ? Escape[1] : Meaning;
			}
		}
		Index += Meaning ? 1 : 0; // anything else behind a backslash stays as it stands
		Result.AppendChar(Meaning ? Meaning : Char);
	}
	return Result;
}

FString FString::PrintfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Args)
{
	FString Result;
	UE::String::Private::AppendFormatted(Result, Format, Args);
	return Result;
}

FString FString::Concat(FStringView A, FStringView B)
{
	FString Result;
	if (A.Len() + B.Len() > 0)
	{
		Result.Reserve(A.Len() + B.Len());
		Result += A;
		Result += B;
	}
	return Result;
}

FString FString::FromInt(int32 Number)
{
	FString Result;
	Result.AppendInt(Number);
	return Result;
}

FString FString::SanitizeFloat(double Number, int32 InMinFractionalDigits)
{
	char Buffer[340];
	const int32 Len = std::snprintf(Buffer, sizeof(Buffer), "%f", Number == 0.0 ? 0.0 : Number); // no "-0"
	FString Result = ConstructFromPtrSize(ANSI_TO_TCHAR(Buffer), Len);
	int32 Point = INDEX_NONE;
	if (!Result.FindChar('.', Point))
	{
		return Result; // inf and nan
	}
	int32 NumDigits = Result.Len() - Point - 1;
	while (NumDigits > 0 && NumDigits > InMinFractionalDigits && Result.EndsWith(TEXT("0")))
	{
		Result.LeftChopInline(1);
		--NumDigits;
	}
	if (NumDigits == 0)
	{
		Result.LeftChopInline(1);
		return InMinFractionalDigits > 0 ? Result + TEXT(".") + ChrN(InMinFractionalDigits, '0') : Result;
	}
	return Result + ChrN(InMinFractionalDigits - NumDigits, '0');
}

FString FString::ChrN(int32 Count, TCHAR Char)
{
	FString Result;
	if (Count > 0)
	{
		Result.Reserve(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Result.AppendChar(Char);
		}
	}
	return Result;
}

void FString::PathAppend(const TCHAR* Text, int32 Count)
{
	const FString Part(FStringView(Text, Count)); // may be a part of this string
	const bool bEndsWithSeparator = FStringView(*this).EndsWith(TEXT('/')) || FStringView(*this).EndsWith(TEXT('\\'));
	const bool bPartBegins = FStringView(Part).StartsWith(TEXT('/'));
	if (bEndsWithSeparator && bPartBegins)
	{
		LeftChopInline(1);
	}
	else if (!IsEmpty() && !bEndsWithSeparator && !bPartBegins && !Part.IsEmpty())
	{
		AppendChar('/');
	}
	*this += Part;
}

FString& FString::operator/=(const TCHAR* Text)
{
	return *this /= FStringView(Text);
}

FString& FString::operator/=(const FString& Text)
{
	return *this /= FStringView(Text);
}

FString& FString::operator/=(FStringView Text)
{
	PathAppend(Text.GetData(), Text.Len());
	return *this;
}

FString LexToString(int64 Value)
{
	return FString::Printf(TEXT("%lld"), Value);
}

FString LexToString(uint64 Value)
{
	return FString::Printf(TEXT("%llu"), Value);
}

FString LexToString(double Value)
{
	return FString::Printf(TEXT("%f"), Value);
}
