// Copyright Velmorant. All Rights Reserved.

#include "Containers/StringView.h"

#include <cstring>

namespace StringSearch
{
	constexpr int32 BlockSize = 16; // units looked at together; compilers turn a block into vector instructions

	/** The first of two characters in a text, or End. */
	const TCHAR* FindEither(const TCHAR* At, const TCHAR* End, TCHAR First, TCHAR Second)
	{
		for (; End - At >= BlockSize; At += BlockSize)
		{
			uint32 bAny = 0;
			for (int32 Index = 0; Index < BlockSize; ++Index)
			{
				bAny |= static_cast<uint32>(At[Index] == First) | static_cast<uint32>(At[Index] == Second);
			}
			if (bAny)
			{
				break;
			}
		}
		while (At < End && *At != First && *At != Second)
		{
			++At;
		}
		return At;
	}

	bool EqualsIgnoringCase(const TCHAR* A, const TCHAR* B, int32 Len)
	{
		for (int32 Index = 0; Index < Len; ++Index)
		{
			if (A[Index] != B[Index] && FChar::ToLower(A[Index]) != FChar::ToLower(B[Index]))
			{
				return false;
			}
		}
		return true;
	}

	bool Matches(const TCHAR* Text, const TCHAR* Sub, int32 SubLen, ESearchCase::Type SearchCase)
	{
		return SearchCase == ESearchCase::CaseSensitive ? std::memcmp(Text, Sub, SubLen * sizeof(TCHAR)) == 0 : EqualsIgnoringCase(Text, Sub, SubLen);
	}

	/** The first match that begins in [Begin, Last]. */
	const TCHAR* FindForward(const TCHAR* Begin, const TCHAR* Last, const TCHAR* Sub, int32 SubLen, ESearchCase::Type SearchCase)
	{
		const bool bIgnoreCase = SearchCase == ESearchCase::IgnoreCase;
		if (bIgnoreCase && Sub[0] >= 0x80)
		{
			// More than two letters may be alike: compare at every place.
			const TCHAR First = FChar::ToLower(Sub[0]);
			for (const TCHAR* At = Begin; At <= Last; ++At)
			{
				if (*At >= 0x80 && FChar::ToLower(*At) == First && EqualsIgnoringCase(At, Sub, SubLen))
				{
					return At;
				}
			}
			return nullptr;
		}
		const TCHAR First = bIgnoreCase ? FChar::ToLower(Sub[0]) : Sub[0];
		const TCHAR Second = bIgnoreCase ? FChar::ToUpper(Sub[0]) : Sub[0];
		for (const TCHAR* At = Begin;; ++At)
		{
			At = FindEither(At, Last + 1, First, Second);
			if (At > Last)
			{
				return nullptr;
			}
			if (Matches(At, Sub, SubLen, SearchCase))
			{
				return At;
			}
		}
	}
}

int32 UE::String::Private::Find(const TCHAR* Text, int32 Len, const TCHAR* Sub, int32 SubLen, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition)
{
	if (!Sub)
	{
		return INDEX_NONE;
	}
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 Start = StartPosition < 0 ? 0 : (StartPosition > Len ? Len : StartPosition);
		if (SubLen == 0)
		{
			return Start;
		}
		if (SubLen > Len - Start)
		{
			return INDEX_NONE;
		}
		const TCHAR* const Found = StringSearch::FindForward(Text + Start, Text + Len - SubLen, Sub, SubLen, SearchCase);
		return Found ? static_cast<int32>(Found - Text) : INDEX_NONE;
	}
	const int32 End = (StartPosition == INDEX_NONE || StartPosition > Len) ? Len : StartPosition;
	for (int32 Index = End - SubLen; Index >= 0; --Index)
	{
		if (StringSearch::Matches(Text + Index, Sub, SubLen, SearchCase))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

bool UE::String::Private::Equals(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase)
{
	return LenA == LenB && (LenA == 0 || StringSearch::Matches(A, B, LenA, SearchCase));
}

int32 UE::String::Private::Compare(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase)
{
	const int32 Common = LenA < LenB ? LenA : LenB;
	for (int32 Index = 0; Index < Common; ++Index)
	{
		const TCHAR CharA = SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(A[Index]) : A[Index];
		const TCHAR CharB = SearchCase == ESearchCase::IgnoreCase ? FChar::ToLower(B[Index]) : B[Index];
		if (CharA != CharB)
		{
			return CharA < CharB ? -1 : 1;
		}
	}
	return LenA == LenB ? 0 : (LenA < LenB ? -1 : 1);
}

uint32 UE::String::Private::HashIgnoringCase(const TCHAR* Text, int32 Len)
{
	uint64 Hash = 0x9e3779b97f4a7c15ull ^ static_cast<uint64>(Len);
	for (int32 Index = 0; Index < Len; ++Index)
	{
		Hash = (Hash ^ FChar::ToLower(Text[Index])) * 0x100000001b3ull;
		Hash ^= Hash >> 29;
	}
	return static_cast<uint32>(Hash ^ (Hash >> 32));
}
