// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringFwd.h"
#include "Containers/StringView.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"
#include "String/FormatStringSan.h"

/**
 * Text that is being worked on. Length and positions count TCHARs (UTF-16 code units).
 *
 * The operators == < and the hash ignore case; Equals and Compare do not unless asked to. Never null: an empty string gives "".
 */
class FString
{
public:
	using ElementType = TCHAR;
	using FmtCharType = TCHAR;

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;

	/** Null counts as empty. 8-bit strings are taken as UTF-8. */
	FString(const TCHAR* InText);
	FString(const ANSICHAR* InText);
	FString(TYPE_OF_NULLPTR) {}
	FString(int32 InCount, const TCHAR* InText);
	explicit FString(FStringView InText);
	FString& operator=(const TCHAR* InText);
	FString& operator=(FStringView InText);

	static FString ConstructFromPtrSize(const TCHAR* InText, int32 InCount) { return FString(FStringView(InText, InCount)); }

	//~ Content

	int32 Len() const { return Data.Num() ? Data.Num() - 1 : 0; }
	bool IsEmpty() const { return Data.Num() <= 1; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	const TCHAR* operator*() const { return Data.Num() ? Data.GetData() : TEXT(""); }

	TCHAR& operator[](int32 Index)
	{
		check(IsValidIndex(Index));
		return Data.GetData()[Index];
	}
	const TCHAR& operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return Data.GetData()[Index];
	}

	// Ranges leave the terminator out.
	TCHAR* begin() { return Data.GetData(); }
	TCHAR* end() { return Data.GetData() + Len(); }
	const TCHAR* begin() const { return Data.GetData(); }
	const TCHAR* end() const { return Data.GetData() + Len(); }

	void Empty(int32 Slack = 0) { Data.Empty(Slack ? Slack + 1 : 0); }
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0); }
	void Reserve(int32 CharacterCount) { Data.Reserve(CharacterCount + 1); }

	//~ Adding and removing

	FString& Append(const TCHAR* Text, int32 Count);
	FString& Append(FStringView Text) { return Append(Text.GetData(), Text.Len()); }
	FString& AppendChar(TCHAR Char) { return Append(&Char, 1); }
	void AppendInt(int32 Number);

	FString& operator+=(const FString& Text) { return Append(*Text, Text.Len()); }
	FString& operator+=(const TCHAR* Text) { return Append(FStringView(Text)); }
	FString& operator+=(const ANSICHAR* Text) { return *this += FString(Text); }
	FString& operator+=(FStringView Text) { return Append(Text.GetData(), Text.Len()); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }

	void InsertAt(int32 Index, TCHAR Char);
	void InsertAt(int32 Index, const FString& Text);
	void RemoveAt(int32 Index, int32 Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default);

	bool RemoveFromStart(const TCHAR* Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromStart(FStringView(Prefix), SearchCase); }
	bool RemoveFromStart(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromStart(FStringView(Prefix), SearchCase); }
	bool RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(const TCHAR* Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromEnd(FStringView(Suffix), SearchCase); }
	bool RemoveFromEnd(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromEnd(FStringView(Suffix), SearchCase); }
	bool RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);

	//~ Comparing

	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	bool StartsWith(const TCHAR* Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return StartsWith(FStringView(Prefix), SearchCase); }
	bool StartsWith(const FString& Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return StartsWith(FStringView(Prefix), SearchCase); }
	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return FStringView(*this).StartsWith(Prefix, SearchCase); }
	bool EndsWith(const TCHAR* Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return EndsWith(FStringView(Suffix), SearchCase); }
	bool EndsWith(const FString& Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return EndsWith(FStringView(Suffix), SearchCase); }
	bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return FStringView(*this).EndsWith(Suffix, SearchCase); }

	friend bool operator==(const FString& A, const FString& B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& A, const TCHAR* B) { return FStringView(A).Equals(FStringView(B), ESearchCase::IgnoreCase); }
	friend bool operator<(const FString& A, const FString& B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }

	friend uint32 GetTypeHash(const FString& String) { return UE::String::Private::HashIgnoringCase(*String, String.Len()); }

	/** Digits with at most one point and a sign in front. */
	bool IsNumeric() const { return !IsEmpty() && FCString::IsNumeric(**this); }

	//~ Searching: an empty text is found at once

	/** @return the index of the match, or INDEX_NONE. From the end, StartPosition is where a match must have ended. */
	int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir, StartPosition);
	}
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir, StartPosition);
	}
	int32 Find(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return UE::String::Private::Find(**this, Len(), SubStr.GetData(), SubStr.Len(), SearchCase, SearchDir, StartPosition);
	}
	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool FindChar(TCHAR Char, int32& OutIndex) const { return FStringView(*this).FindChar(Char, OutIndex); }
	bool FindLastChar(TCHAR Char, int32& OutIndex) const { return FStringView(*this).FindLastChar(Char, OutIndex); }

	/**
	 * Parts the string at the first (last) place of Separator. Without one, nothing is written.
	 * Either output may be null, and either may be this string itself.
	 */
	bool Split(const FString& Separator, FString* LeftS, FString* RightS) const { return Split(Separator, LeftS, RightS, ESearchCase::IgnoreCase); }
	bool Split(const FString& Separator, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;

	//~ Parts; counts are clamped

	FString Left(int32 Count) const { return FString(FStringView(*this).Left(Count)); }
	FString LeftChop(int32 Count) const { return FString(FStringView(*this).LeftChop(Count)); }
	FString Right(int32 Count) const { return FString(FStringView(*this).Right(Count)); }
	FString RightChop(int32 Count) const { return FString(FStringView(*this).RightChop(Count)); }
	FString Mid(int32 Start, int32 Count = MAX_int32) const { return FString(FStringView(*this).Mid(Start, Count)); }
	void LeftInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	void LeftChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { LeftInline(Len() - Count, AllowShrinking); }
	void RightChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);

	FString TrimEnd() const { return FString(FStringView(*this).TrimEnd()); }
	FString TrimStartAndEnd() const { return FString(FStringView(*this).TrimStartAndEnd()); }

	/** The parts between the delimiters; Out is emptied first. @return how many there are. */
	int32 ParseIntoArray(TArray<FString>& Out, const TCHAR* Delimiter, bool InCullEmpty = true) const;
	/** \r\n, \n and \r each end a line. */
	int32 ParseIntoArrayLines(TArray<FString>& Out, bool InCullEmpty = true) const;
	/** The words between blanks of any kind. */
	int32 ParseIntoArrayWS(TArray<FString>& Out) const;

	//~ Changed copies

	FString ToLower() const&;
	FString ToLower() &&;
	FString ToUpper() const&;
	FString ToUpper() &&;
	void ToLowerInline();
	void ToUpperInline();

	/** All places from left to right, none overlapping. An empty From changes nothing. */
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** @return how many places were replaced. */
	int32 ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	/** Line breaks, tabs, quotes and backslashes as \n \r \t \" \' \\, and back. */
	FString ReplaceCharWithEscapedChar() const;
	FString ReplaceEscapedCharWithChar() const;

	//~ Making strings

	/** Format must be a literal that fits the arguments: anything else does not compile. */
	template<typename... Types>
	static FString Printf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {Args..., UE::Core::FFormatArgument()};
		return PrintfImpl(Format.Format, Arguments);
	}

	static FString FromInt(int32 Number);
	/** With the digits that are needed and at least one after the point: "1.0", "0.25". */
	static FString SanitizeFloat(double Number, int32 InMinFractionalDigits = 1);
	static FString Chr(TCHAR Char) { return FString(FStringView(&Char, 1)); }
	static FString ChrN(int32 Count, TCHAR Char);

	template<typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += Element;
		}
		return Result;
	}

	template<typename RangeType, typename ProjectionType>
	static FString JoinBy(const RangeType& Range, const TCHAR* Separator, ProjectionType Projection)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += Projection(Element);
		}
		return Result;
	}

	friend FString operator+(const FString& A, const FString& B) { return Concat(A, B); }
	friend FString operator+(FString&& A, const FString& B) { return MoveTemp(A += B); }
	friend FString operator+(const FString& A, const TCHAR* B) { return Concat(A, B); }
	friend FString operator+(FString&& A, const TCHAR* B) { return MoveTemp(A += B); }
	friend FString operator+(const FString& A, FStringView B) { return Concat(A, B); }
	friend FString operator+(FString&& A, FStringView B) { return MoveTemp(A += B); }
	friend FString operator+(const TCHAR* A, const FString& B) { return Concat(A, B); }
	friend FString operator+(FStringView A, const FString& B) { return Concat(A, B); }
	friend FString operator+(const FString& A, TCHAR B) { return Concat(A, FStringView(&B, 1)); }
	friend FString operator+(FString&& A, TCHAR B) { return MoveTemp(A += B); }
	friend FString operator+(TCHAR A, const FString& B) { return Concat(FStringView(&A, 1), B); }

	//~ Paths: exactly one '/' between the parts

	void PathAppend(const TCHAR* Text, int32 Count);
	FString& operator/=(const TCHAR* Text);
	FString& operator/=(const FString& Text);
	FString& operator/=(FStringView Text);
	friend FString operator/(const FString& A, const FString& B) { return FString(A) /= B; }
	friend FString operator/(const FString& A, const TCHAR* B) { return FString(A) /= B; }
	friend FString operator/(const FString& A, FStringView B) { return FString(A) /= B; }
	friend FString operator/(const TCHAR* A, const FString& B) { return FString(A) /= B; }

private:
	static FString PrintfImpl(const TCHAR* Format, const UE::Core::FFormatArgument* Args);
	static FString Concat(FStringView A, FStringView B);

	TArray<TCHAR> Data; // empty, or the characters and a terminator
};

inline FString LexToString(FString String)
{
	return String;
}
inline FString LexToString(const TCHAR* String)
{
	return FString(String);
}
inline FString LexToString(bool bValue)
{
	return bValue ? FString(TEXT("true")) : FString(TEXT("false"));
}
FString LexToString(int64 Value);
FString LexToString(uint64 Value);
FString LexToString(double Value);
inline FString LexToString(int8 Value)
{
	return LexToString(static_cast<int64>(Value));
}
inline FString LexToString(int16 Value)
{
	return LexToString(static_cast<int64>(Value));
}
inline FString LexToString(int32 Value)
{
	return LexToString(static_cast<int64>(Value));
}
inline FString LexToString(uint8 Value)
{
	return LexToString(static_cast<uint64>(Value));
}
inline FString LexToString(uint16 Value)
{
	return LexToString(static_cast<uint64>(Value));
}
inline FString LexToString(uint32 Value)
{
	return LexToString(static_cast<uint64>(Value));
}
inline FString LexToString(float Value)
{
	return LexToString(static_cast<double>(Value));
}
