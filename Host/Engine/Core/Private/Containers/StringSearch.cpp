// Copyright Velmorant. All Rights Reserved.

#include "Containers/StringView.h"
#include "Math/UnrealMathUtility.h"

#include <array>
#include <bit>
#include <cstring>

namespace StringSearch
{
	/** Units that are compared at once, in one register of the machine. */
	typedef uint16 FBlock __attribute__((vector_size(16)));
	constexpr int32 BlockSize = sizeof(FBlock) / sizeof(TCHAR);
	constexpr int32 NearUnits = 64; // where a search looks before it prepares for a long way

	FBlock LoadBlock(const TCHAR* At)
	{
		FBlock Block;
		std::memcpy(&Block, At, sizeof(Block));
		return Block;
	}

	FBlock FillBlock(TCHAR Char)
	{
		return FBlock{} + static_cast<uint16>(Char);
	}

	/** What a place must show to be worth comparing: one of two characters there, and one of two others at a distance. */
	class FLandmarks
	{
	public:
		/** The first and the last character of Sub; the last one only when no more than two are alike. The first is ASCII, or its case counts. */
		FLandmarks(const TCHAR* Sub, int32 SubLen, bool bIgnoreCase)
			: First(bIgnoreCase ? FChar::ToLower(Sub[0]) : Sub[0])
			, FirstOther(bIgnoreCase ? FChar::ToUpper(Sub[0]) : Sub[0])
			, Distance(bIgnoreCase && Sub[SubLen - 1] >= 0x80 ? 0 : SubLen - 1)
			, Far(bIgnoreCase ? FChar::ToLower(Sub[Distance]) : Sub[Distance])
			, FarOther(bIgnoreCase ? FChar::ToUpper(Sub[Distance]) : Sub[Distance])
		{
		}

		/** The first place of the landmarks in a text, or End. The text goes on beyond End by their distance. */
		const TCHAR* Find(const TCHAR* At, const TCHAR* End) const
		{
			const FBlock Firsts = FillBlock(First);
			const FBlock FirstOthers = FillBlock(FirstOther);
			const FBlock Fars = FillBlock(Far);
			const FBlock FarOthers = FillBlock(FarOther);
			for (; End - At >= BlockSize; At += BlockSize)
			{
				const FBlock Near = LoadBlock(At);
				const FBlock Later = LoadBlock(At + Distance);
				const auto Hits = ((Near == Firsts) | (Near == FirstOthers)) & ((Later == Fars) | (Later == FarOthers));
				const std::array<uint64, 2> Halves = std::bit_cast<std::array<uint64, 2>>(Hits);
				if (Halves[0] | Halves[1])
				{
					break;
				}
			}
			while (At < End && !AreAt(At))
			{
				++At;
			}
			return At;
		}

	private:
		bool AreAt(const TCHAR* At) const { return (At[0] == First || At[0] == FirstOther) && (At[Distance] == Far || At[Distance] == FarOther); }

		TCHAR First;
		TCHAR FirstOther;
		int32 Distance;
		TCHAR Far;
		TCHAR FarOther;
	};

	bool EqualsIgnoringCase(const TCHAR* A, const TCHAR* B, int32 Len)
	{
		if (std::memcmp(A, B, static_cast<std::size_t>(Len) * sizeof(TCHAR)) == 0)
		{
			return true; // as most that are equal are
		}
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
		return SearchCase == ESearchCase::CaseSensitive ? std::memcmp(Text, Sub, static_cast<std::size_t>(SubLen) * sizeof(TCHAR)) == 0 : EqualsIgnoringCase(Text, Sub, SubLen);
	}

	/**
	 * As FindForward(), case counts. Looks at one pair of neighbours, skips ahead to the next place where it could stand in Sub, and so on;
	 * most pairs do not occur in Sub at all. Quick in long texts. Sub has 2 to 255 units.
	 *
	 * The branches are meant: guessing the long step, the processor reads ahead. A table of steps without branches took half as long again.
	 */
	const TCHAR* FindBySkipping(const TCHAR* Begin, const TCHAR* Last, const TCHAR* Sub, int32 SubLen)
	{
		const auto HashPair = [](const TCHAR* Second) { return static_cast<uint8>(Second[0] + (Second[-1] << 3)); };

		// By pair: how far its last place in Sub is from Sub's end, plus one. 0 for pairs that do not occur.
		uint8 Skips[256] = {};
		for (int32 Index = 1; Index < SubLen; ++Index)
		{
			Skips[HashPair(Sub + Index)] = static_cast<uint8>(SubLen - Index);
		}

		const TCHAR* const LastEnd = Last + SubLen - 1;
		for (const TCHAR* End = Begin + SubLen - 1; End <= LastEnd;)
		{
			const uint8 Skip = Skips[HashPair(End)];
			if (Skip == 0)
			{
				End += SubLen - 1;
			}
			else if (Skip > 1)
			{
				End += Skip - 1;
			}
			else if (std::memcmp(End - (SubLen - 1), Sub, static_cast<std::size_t>(SubLen) * sizeof(TCHAR)) == 0)
			{
				return End - (SubLen - 1);
			}
			else
			{
				++End;
			}
		}
		return nullptr;
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
		// Skipping takes some preparation, which pays when the match is not near.
		const bool bSkip = !bIgnoreCase && SubLen >= 4 && SubLen <= 255 && Last - Begin > 4 * NearUnits;
		const TCHAR* const NearEnd = bSkip ? Begin + NearUnits : Last + 1;
		const FLandmarks Landmarks(Sub, SubLen, bIgnoreCase);
		for (const TCHAR* At = Landmarks.Find(Begin, NearEnd); At < NearEnd; At = Landmarks.Find(At + 1, NearEnd))
		{
			if (Matches(At, Sub, SubLen, SearchCase))
			{
				return At;
			}
		}
		return bSkip ? FindBySkipping(NearEnd, Last, Sub, SubLen) : nullptr;
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
		const int32 Start = FMath::Clamp(StartPosition, 0, Len);
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
	if (LenA == LenB)
	{
		return 0;
	}
	return LenA < LenB ? -1 : 1;
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
