// Copyright Velmorant. All Rights Reserved.

#include "Icons/PackageIcon.h"

#include "Misc/Char.h"

#include <algorithm>

namespace PackageIcon
{
	/** "sharp-duotone" becomes "SharpDuotone". */
	FString ToPascalCase(const FString& Text)
	{
		FString Result;
		bool bStart = true;
		for (const TCHAR Character : Text)
		{
			if (Character == TEXT('-'))
			{
				bStart = true;
				continue;
			}
			Result += bStart ? FChar::ToUpper(Character) : Character;
			bStart = false;
		}
		return Result;
	}

	bool IsStyleCharacter(TCHAR Character)
	{
		return (Character >= TEXT('a') && Character <= TEXT('z')) || FChar::IsDigit(Character) || Character == TEXT('-');
	}

	uint32 ParseHexadecimal(const FString& Digits)
	{
		uint32 Number = 0;
		for (const TCHAR Character : Digits)
		{
			const TCHAR Digit = FChar::ToLower(Character);
			Number = Number * 16 + static_cast<uint32>(FChar::IsDigit(Digit) ? Digit - TEXT('0') : Digit - TEXT('a') + 10);
		}
		return Number;
	}

	/** Empty for what is no Unicode scalar value. */
	FString ToCharacter(uint32 CodePoint)
	{
		if (CodePoint == 0 || CodePoint > 0x10FFFF || (CodePoint >= 0xD800 && CodePoint <= 0xDFFF))
		{
			return FString();
		}
		if (CodePoint < 0x10000)
		{
			return FString::Chr(static_cast<TCHAR>(CodePoint));
		}
		const uint32 Offset = CodePoint - 0x10000;
		return FString::Chr(static_cast<TCHAR>(0xD800 + (Offset >> 10))) + FString::Chr(static_cast<TCHAR>(0xDC00 + (Offset & 0x3FF)));
	}
}

FName FPackageStyle::GetName() const
{
	using namespace PackageIcon;
	return FName(Family == TEXT("classic") ? ToPascalCase(Style) : ToPascalCase(Family) + ToPascalCase(Style));
}

bool FPackageStyle::IsValidPart(const FString& Text)
{
	return !Text.IsEmpty() && Text.Len() <= 60 && Text[0] != TEXT('-') && Text != TEXT("none") && std::all_of(Text.begin(), Text.end(), &PackageIcon::IsStyleCharacter);
}

FString FPackageIcon::ParseCharacter(const FString& Hexadecimal)
{
	const bool bHexadecimal = !Hexadecimal.IsEmpty() && Hexadecimal.Len() <= 6 && std::all_of(Hexadecimal.begin(), Hexadecimal.end(), &FChar::IsHexDigit);
	return bHexadecimal ? PackageIcon::ToCharacter(PackageIcon::ParseHexadecimal(Hexadecimal)) : FString();
}
