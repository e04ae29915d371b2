// Copyright Velmorant. All Rights Reserved.

#include "Reflection/DisplayNames.h"

#include "Misc/Char.h"

namespace UE::Reflection
{
	FString NameToDisplayString(const FString& Name, bool bIsBool)
	{
		FString Result;
		const bool bDropPrefix = bIsBool && Name.Len() > 1 && Name[0] == TEXT('b') && FChar::IsUpper(Name[1]);
		bool bStartOfWord = true;
		for (int32 Index = bDropPrefix ? 1 : 0; Index < Name.Len(); ++Index)
		{
			const TCHAR Character = Name[Index];
			if (Character == TEXT('_'))
			{
				bStartOfWord = true;
				continue;
			}
			// A capital starts a word after a small letter or digit, or when a small letter follows a run of capitals.
			const bool bUpper = FChar::IsUpper(Character);
			const bool bAfterSmall = Index > 0 && (FChar::IsLower(Name[Index - 1]) || FChar::IsDigit(Name[Index - 1]));
			const bool bBeforeSmall = Index + 1 < Name.Len() && FChar::IsLower(Name[Index + 1]);
			const bool bAfterUpper = Index > 0 && FChar::IsUpper(Name[Index - 1]);
			const bool bDigitAfterSmall = FChar::IsDigit(Character) && Index > 0 && FChar::IsLower(Name[Index - 1]);
			const bool bNewWord = bStartOfWord || (bUpper && (bAfterSmall || (bAfterUpper && bBeforeSmall))) || bDigitAfterSmall;
			if (bNewWord && !Result.IsEmpty())
			{
				Result += TEXT(' ');
			}
			Result += bStartOfWord ? FChar::ToUpper(Character) : Character;
			bStartOfWord = false;
		}
		return Result;
	}
}
