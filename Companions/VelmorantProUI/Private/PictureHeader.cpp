// Copyright Velmorant. All Rights Reserved.

#include "PictureHeader.h"

namespace PictureHeader
{
	/** Big endian, as both formats have it. The bytes must be there. */
	uint32 ReadNumber(const TArray<uint8>& Data, int32 At, int32 NumBytes)
	{
		uint32 Number = 0;
		for (int32 Index = 0; Index < NumBytes; ++Index)
		{
			Number = Number << 8 | Data[At + Index];
		}
		return Number;
	}

	bool StartsWith(const TArray<uint8>& Data, std::initializer_list<uint8> Bytes)
	{
		int32 Index = 0;
		for (const uint8 Byte : Bytes)
		{
			if (!Data.IsValidIndex(Index) || Data[Index++] != Byte)
			{
				return false;
			}
		}
		return true;
	}

	TOptional<FVector2D> ReadPngSize(const TArray<uint8>& Data)
	{
		const int32 WidthAt = 16; // after the signature, and the first chunk's length and name
		if (Data.Num() < WidthAt + 8)
		{
			return {};
		}
		return FVector2D(ReadNumber(Data, WidthAt, 4), ReadNumber(Data, WidthAt + 4, 4));
	}

	/** Baseline, progressive and the rarer frames; the three other markers of that range are tables. */
	bool IsFrameMarker(uint8 Marker)
	{
		return Marker >= 0xC0 && Marker <= 0xCF && Marker != 0xC4 && Marker != 0xC8 && Marker != 0xCC;
	}

	/** Segment by segment to the one that begins the frame. */
	TOptional<FVector2D> ReadJpegSize(const TArray<uint8>& Data)
	{
		for (int32 At = 2; At + 9 <= Data.Num() && Data[At] == 0xFF;)
		{
			if (IsFrameMarker(Data[At + 1]))
			{
				return FVector2D(ReadNumber(Data, At + 7, 2), ReadNumber(Data, At + 5, 2));
			}
			At += 2 + static_cast<int32>(ReadNumber(Data, At + 2, 2)); // the length counts itself, not the marker
		}
		return {};
	}
}

TOptional<FVector2D> PictureHeader::ReadSize(const TArray<uint8>& Data)
{
	if (StartsWith(Data, {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}))
	{
		return ReadPngSize(Data);
	}
	return StartsWith(Data, {0xFF, 0xD8}) ? ReadJpegSize(Data) : TOptional<FVector2D>();
}
