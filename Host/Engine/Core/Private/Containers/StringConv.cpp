// Copyright Velmorant. All Rights Reserved.

#include "Containers/StringConv.h"
#include "Containers/StringView.h"

#include <type_traits>

namespace StringConvPrivate
{
	constexpr uint32 Replacement = 0xfffd;

	/** Reads one code point and moves past it. */
	uint32 Decode(const TCHAR*& At, const TCHAR* End)
	{
		const uint32 Unit = *At++;
		if (Unit < 0xd800 || Unit > 0xdfff)
		{
			return Unit;
		}
		if (Unit < 0xdc00 && At < End && *At >= 0xdc00 && *At <= 0xdfff)
		{
			return 0x10000 + ((Unit - 0xd800) << 10) + (*At++ - 0xdc00);
		}
		return Replacement;
	}

	/** By the number of bytes that follow the first one. */
	constexpr uint32 SmallestPoints[] = {0, 0x80, 0x800, 0x10000};

	/** How many bytes follow the first one. */
	int32 CountMore(uint8 First)
	{
		return 1 + (First >= 0xe0 ? 1 : 0) + (First >= 0xf0 ? 1 : 0);
	}

	uint32 Decode(const ANSICHAR*& At, const ANSICHAR* End)
	{
		const uint8 First = static_cast<uint8>(*At++);
		if (First < 0x80)
		{
			return First;
		}
		const int32 NumMore = CountMore(First);
		if (First < 0xc2 || First > 0xf4 || End - At < NumMore)
		{
			return Replacement;
		}
		uint32 Result = First & (0x3f >> NumMore);
		for (int32 Index = 0; Index < NumMore; ++Index)
		{
			const uint8 Next = static_cast<uint8>(At[Index]);
			if ((Next & 0xc0) != 0x80)
			{
				return Replacement;
			}
			Result = (Result << 6) | (Next & 0x3f);
		}
		const bool bOverlong = Result < SmallestPoints[NumMore];
		if (bOverlong || Result > 0x10ffff || (Result >= 0xd800 && Result <= 0xdfff))
		{
			return Replacement;
		}
		At += NumMore;
		return Result;
	}

	TCHAR* Encode(TCHAR* Out, uint32 Point)
	{
		if (Point >= 0x10000)
		{
			*Out++ = static_cast<TCHAR>(0xd800 + ((Point - 0x10000) >> 10));
			*Out++ = static_cast<TCHAR>(0xdc00 + ((Point - 0x10000) & 0x3ff));
		}
		else
		{
			*Out++ = static_cast<TCHAR>(Point);
		}
		return Out;
	}

	ANSICHAR* Encode(ANSICHAR* Out, uint32 Point)
	{
		if (Point < 0x80)
		{
			*Out++ = static_cast<ANSICHAR>(Point);
			return Out;
		}
		const int32 NumMore = 1 + (Point >= SmallestPoints[2] ? 1 : 0) + (Point >= SmallestPoints[3] ? 1 : 0);
		constexpr uint32 Leads[] = {0, 0xc0, 0xe0, 0xf0}; // by the number of bytes that follow
		const uint32 Lead = Leads[NumMore];
		*Out++ = static_cast<ANSICHAR>(Lead | (Point >> (6 * NumMore)));
		for (int32 Index = NumMore - 1; Index >= 0; --Index)
		{
			*Out++ = static_cast<ANSICHAR>(0x80 | ((Point >> (6 * Index)) & 0x3f));
		}
		return Out;
	}
}

template<typename FromType, typename ToType>
TStringConversion<FromType, ToType>::TStringConversion(const FromType* Source)
{
	Convert(Source, UE::String::Private::Length(Source));
}

template<typename FromType, typename ToType>
TStringConversion<FromType, ToType>::~TStringConversion()
{
	if (Buffer != Inline)
	{
		delete[] Buffer;
	}
}

template<typename FromType, typename ToType>
void TStringConversion<FromType, ToType>::Convert(const FromType* Source, int32 SourceLen)
{
	// One UTF-16 unit becomes at most three bytes; one byte becomes at most one unit.
	constexpr SIZE_T Growth = sizeof(ToType) == 1 ? 3 : 1;
	const SIZE_T Needed = static_cast<SIZE_T>(SourceLen) * Growth + 1;
	if (Needed > static_cast<SIZE_T>(InlineUnits))
	{
		Buffer = new ToType[Needed];
	}
	ToType* Out = Buffer;
	const FromType* const End = Source + SourceLen;
	for (const FromType* At = Source; At < End;)
	{
		if (static_cast<std::make_unsigned_t<FromType>>(*At) < 0x80)
		{
			*Out++ = static_cast<ToType>(*At++); // most texts hold little else
			continue;
		}
		Out = StringConvPrivate::Encode(Out, StringConvPrivate::Decode(At, End));
	}
	*Out = 0;
	Len = static_cast<int32>(Out - Buffer);
}

template class TStringConversion<TCHAR, ANSICHAR>;
template class TStringConversion<ANSICHAR, TCHAR>;
