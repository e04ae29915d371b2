// Copyright Velmorant. All Rights Reserved.

#include "UObject/NameTypes.h"

#include "Containers/StringConv.h"
#include "Internationalization/Internationalization.h"
#include "Internationalization/Text.h"
#include "UObject/NamePool.h"

namespace NameTypes
{
	struct FSplitName
	{
		FStringView Text;
		uint32 Number = NAME_NO_NUMBER_INTERNAL;
	};

	/** Takes "_<digits>" off when printing it again gives the same text. */
	FSplitName SplitNumber(FStringView Name)
	{
		constexpr int32 MaxDigits = 10;
		int32 NumDigits = 0;
		while (NumDigits < Name.Len() && FChar::IsDigit(Name[Name.Len() - 1 - NumDigits]))
		{
			++NumDigits;
		}
		const int32 Underscore = Name.Len() - NumDigits - 1;
		if (NumDigits == 0 || NumDigits > MaxDigits || Underscore < 1 || Name[Underscore] != '_')
		{
			return FSplitName{Name};
		}
		const FStringView Digits = Name.RightChop(Underscore + 1);
		if (Digits[0] == '0' && NumDigits > 1)
		{
			return FSplitName{Name};
		}
		int64 Value = 0;
		for (const TCHAR Digit : Digits)
		{
			Value = Value * 10 + FChar::ConvertCharDigitToInt(Digit);
		}
		if (Value >= MAX_int32)
		{
			return FSplitName{Name};
		}
		return FSplitName{Name.Left(Underscore), static_cast<uint32>(NAME_EXTERNAL_TO_INTERNAL(Value))};
	}
}

FName::FName(FStringView Name, EFindName FindType)
{
	const NameTypes::FSplitName Split = NameTypes::SplitNumber(Name);
	const FNamePool::FIds Ids = FNamePool::Get().Find(Split.Text, FindType);
	const bool bFound = FindType == FNAME_Add || !Ids.Comparison.IsNone() || Split.Text.Equals(FStringView(TEXT("None")), ESearchCase::IgnoreCase);
	ComparisonIndex = Ids.Comparison;
	DisplayIndex = Ids.Display;
	Number = bFound ? Split.Number : NAME_NO_NUMBER_INTERNAL;
}

FName::FName(const TCHAR* Name, EFindName FindType)
	: FName(FStringView(Name), FindType)
{
}

FName::FName(const ANSICHAR* Name, EFindName FindType)
{
	const FUTF8ToTCHAR Text(Name);
	*this = FName(FStringView(Text.Get(), Text.Length()), FindType);
}

FName::FName(const FString& Name, EFindName FindType)
	: FName(FStringView(Name), FindType)
{
}

FName::FName(const TCHAR* Name, int32 InNumber)
	: Number(static_cast<uint32>(InNumber))
{
	const FNamePool::FIds Ids = FNamePool::Get().Find(FStringView(Name), FNAME_Add);
	ComparisonIndex = Ids.Comparison;
	DisplayIndex = Ids.Display;
}

FName::FName(const ANSICHAR* Name, int32 InNumber)
	: FName(ANSI_TO_TCHAR(Name), InNumber)
{
}

bool FName::IsValid() const
{
	return FNamePool::Get().IsValid(ComparisonIndex) && FNamePool::Get().IsValid(DisplayIndex);
}

FString FName::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FName::AppendString(FString& Out) const
{
	Out += FNamePool::Get().GetText(DisplayIndex);
	if (Number != NAME_NO_NUMBER_INTERNAL)
	{
		Out.AppendChar('_');
		Out.AppendInt(NAME_INTERNAL_TO_EXTERNAL(GetNumber()));
	}
}

FString FName::GetPlainNameString() const
{
	return FString(FNamePool::Get().GetText(DisplayIndex));
}

bool FName::EqualsText(FStringView Text) const
{
	// An unknown text is no name at all, unless it is one that stands for None.
	const FName Other(Text, FNAME_Find);
	return *this == Other && (!Other.IsNone() || Text.IsEmpty() || Text.Equals(FStringView(TEXT("None")), ESearchCase::IgnoreCase));
}

bool FName::IsValidXName(FStringView Name, FStringView InvalidChars, FText* OutReason)
{
	if (Name.IsEmpty())
	{
		if (OutReason)
		{
			*OutReason = NSLOCTEXT("Core", "EmptyName", "A name must not be empty.");
		}
		return false;
	}
	FString Found;
	for (const TCHAR Char : InvalidChars)
	{
		int32 Index = INDEX_NONE;
		if (Name.FindChar(Char, Index))
		{
			Found.AppendChar(Char);
		}
	}
	if (!Found.IsEmpty() && OutReason)
	{
		*OutReason = FText::Format(NSLOCTEXT("Core", "NameContainsInvalidCharacters", "A name may not contain the following characters: {0}"),
			FText::FromString(Found.ReplaceCharWithEscapedChar()));
	}
	return Found.IsEmpty();
}

bool FName::IsValidXName(FStringView InvalidChars, FText* OutReason) const
{
	return IsValidXName(FStringView(ToString()), InvalidChars, OutReason);
}
