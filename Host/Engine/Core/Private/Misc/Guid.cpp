// Copyright Velmorant. All Rights Reserved.

#include "Misc/Guid.h"

#include <random>

FGuid FGuid::NewGuid()
{
	std::random_device Random;
	// Version 4 (random), variant 1.
	return FGuid(Random(), (Random() & 0xffff0fffu) | 0x4000u, (Random() & 0x3fffffffu) | 0x80000000u, Random());
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	// The hyphens and braces stand where ToString puts them, or not at all.
	const FString Digits = GuidString.Replace(TEXT("-"), TEXT("")).Replace(TEXT("{"), TEXT("")).Replace(TEXT("}"), TEXT(""));
	if (Digits.Len() != 32)
	{
		return false;
	}
	uint32 Parts[4] = {};
	for (int32 Index = 0; Index < 32; ++Index)
	{
		const TCHAR Char = FChar::ToLower(Digits[Index]);
		if (!FChar::IsHexDigit(Char))
		{
			return false;
		}
		Parts[Index / 8] = (Parts[Index / 8] << 4) | static_cast<uint32>(Char <= '9' ? Char - '0' : Char - 'a' + 10);
	}
	const FGuid Parsed(Parts[0], Parts[1], Parts[2], Parts[3]);
	for (const EGuidFormats Format : {EGuidFormats::Digits, EGuidFormats::DigitsWithHyphens, EGuidFormats::DigitsWithHyphensInBraces})
	{
		if (Parsed.ToString(Format) == GuidString)
		{
			OutGuid = Parsed;
			return true;
		}
	}
	return false;
}

FString FGuid::ToString(EGuidFormats Format) const
{
	switch (Format)
	{
		case EGuidFormats::DigitsLower:
			return ToString(EGuidFormats::Digits).ToLower();
		case EGuidFormats::DigitsWithHyphens:
			return FString::Printf(TEXT("%08X-%04X-%04X-%04X-%04X%08X"), A, B >> 16, B & 0xffff, C >> 16, C & 0xffff, D);
		case EGuidFormats::DigitsWithHyphensLower:
			return ToString(EGuidFormats::DigitsWithHyphens).ToLower();
		case EGuidFormats::DigitsWithHyphensInBraces:
			return TEXT("{") + ToString(EGuidFormats::DigitsWithHyphens) + TEXT("}");
		case EGuidFormats::Digits:
			break;
	}
	return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
}
