// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/StringFwd.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"

#include <concepts>

namespace UE::String::Private
{
	int32 Compare(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase);
	bool Equals(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase);

	/** The first (last) place of Sub whose match begins at or after (ends at or before) StartPosition; INDEX_NONE searches all. */
	int32 Find(const TCHAR* Text, int32 Len, const TCHAR* Sub, int32 SubLen, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition);

	/** Equal for strings that differ in case only. */
	uint32 HashIgnoringCase(const TCHAR* Text, int32 Len);

	template<typename CharType>
	constexpr int32 Length(const CharType* String)
	{
		int32 Len = 0;
		while (String && String[Len])
		{
			++Len;
		}
		return Len;
	}

	/** Strings that know their length: FString and its like. */
	template<typename RangeType, typename CharType>
	concept TStringOf = requires(const RangeType& Range)
	{
		{
			*Range
			} -> std::same_as<const CharType*>;
		{
			Range.Len()
			} -> std::same_as<int32>;
	};
}

/** Characters that belong to somebody else, not necessarily followed by a terminator. The owner must outlive the view. */
template<typename CharType>
class TStringView
{
public:
	using ElementType = CharType;

	constexpr TStringView() = default;
	constexpr TStringView(const CharType* InData)
		: Data(InData)
		, Size(UE::String::Private::Length(InData))
	{
	}
	constexpr TStringView(const CharType* InData, int32 InSize)
		: Data(InData)
		, Size(InSize)
	{
	}
	template<typename RangeType>
	requires UE::String::Private::TStringOf<RangeType, CharType>
	constexpr TStringView(const RangeType& Range)
		: Data(*Range)
		, Size(Range.Len())
	{
	}

	constexpr const CharType* GetData() const { return Data; }
	constexpr int32 Len() const { return Size; }
	constexpr bool IsEmpty() const { return Size == 0; }
	constexpr const CharType& operator[](int32 Index) const
	{
		check(Index >= 0 && Index < Size);
		return Data[Index];
	}

	constexpr const CharType* begin() const { return Data; }
	constexpr const CharType* end() const { return Data + Size; }

	// Parts of the view; counts are clamped.
	constexpr TStringView Left(int32 Count) const { return TStringView(Data, Clamp(Count)); }
	constexpr TStringView LeftChop(int32 Count) const { return TStringView(Data, Clamp(Size - Count)); }
	constexpr TStringView Right(int32 Count) const { return RightChop(Size - Clamp(Count)); }
	constexpr TStringView RightChop(int32 Count) const { return TStringView(Data + Clamp(Count), Size - Clamp(Count)); }
	constexpr TStringView Mid(int32 Position, int32 Count = MAX_int32) const { return RightChop(Position).Left(Count); }
	constexpr void LeftInline(int32 Count) { *this = Left(Count); }
	constexpr void LeftChopInline(int32 Count) { *this = LeftChop(Count); }
	constexpr void RightChopInline(int32 Count) { *this = RightChop(Count); }
	constexpr void RemovePrefix(int32 Count) { *this = RightChop(Count); }

	TStringView TrimStart() const
	{
		int32 First = 0;
		while (First < Size && FChar::IsWhitespace(Data[First]))
		{
			++First;
		}
		return RightChop(First);
	}
	TStringView TrimEnd() const
	{
		int32 Count = Size;
		while (Count > 0 && FChar::IsWhitespace(Data[Count - 1]))
		{
			--Count;
		}
		return Left(Count);
	}
	TStringView TrimStartAndEnd() const { return TrimStart().TrimEnd(); }

	bool Equals(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::String::Private::Equals(Data, Size, Other.Data, Other.Size, SearchCase);
	}
	bool StartsWith(TStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Prefix.Size <= Size && Left(Prefix.Size).Equals(Prefix, SearchCase);
	}
	bool EndsWith(TStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Suffix.Size <= Size && Right(Suffix.Size).Equals(Suffix, SearchCase);
	}
	bool StartsWith(CharType Prefix) const { return Size > 0 && Data[0] == Prefix; }
	bool EndsWith(CharType Suffix) const { return Size > 0 && Data[Size - 1] == Suffix; }

	/** @return the index of the first match, or INDEX_NONE. */
	int32 Find(TStringView Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return UE::String::Private::Find(Data, Size, Search.Data, Search.Size, SearchCase, ESearchDir::FromStart, StartPosition);
	}
	bool Contains(TStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return Find(Search, 0, SearchCase) != INDEX_NONE; }

	constexpr bool FindChar(CharType Char, int32& OutIndex) const
	{
		for (int32 Index = 0; Index < Size; ++Index)
		{
			if (Data[Index] == Char)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}
	constexpr bool FindLastChar(CharType Char, int32& OutIndex) const
	{
		for (int32 Index = Size - 1; Index >= 0; --Index)
		{
			if (Data[Index] == Char)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	/** Like FString, views are equal when they differ in case only. */
	friend bool operator==(TStringView A, TStringView B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator<(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }

	friend uint32 GetTypeHash(TStringView View) { return UE::String::Private::HashIgnoringCase(View.Data, View.Size); }

private:
	constexpr int32 Clamp(int32 Count) const
	{
		const int32 Available = Count < Size ? Count : Size;
		return Available < 0 ? 0 : Available;
	}

	const CharType* Data = nullptr;
	int32 Size = 0;
};

/** A view of a literal. */
#define TEXTVIEW(String) FStringView(TEXT(String), static_cast<int32>(sizeof(TEXT(String)) / sizeof(TCHAR)) - 1)
