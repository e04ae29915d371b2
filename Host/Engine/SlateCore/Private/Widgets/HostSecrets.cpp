// Copyright Velmorant. All Rights Reserved.

#include "HostSecrets.h"

#include "Containers/Array.h"
#include "Misc/Char.h"

namespace HostSecrets
{
	constexpr int32 MinLengthWithinWords = 4;
	const TCHAR* const Bullets = TEXT("\u2022\u2022\u2022\u2022\u2022\u2022\u2022\u2022");

	TArray<FString> Secrets; // longest first: one may be part of another

	bool IsInWord(const FString& Text, int32 Index)
	{
		return Text.IsValidIndex(Index) && (FChar::IsAlnum(Text[Index]) || Text[Index] == TEXT('_'));
	}

	FString HideOne(const FString& Text, const FString& Secret)
	{
		FString Result;
		int32 Begin = 0;
		int32 Found = Text.Find(Secret, ESearchCase::CaseSensitive);
		while (Found != INDEX_NONE)
		{
			const int32 End = Found + Secret.Len();
			const bool bAlone = !IsInWord(Text, Found - 1) && !IsInWord(Text, End);
			const bool bHidden = bAlone || Secret.Len() >= MinLengthWithinWords;
			Result += Text.Mid(Begin, Found - Begin) + (bHidden ? FString(Bullets) : Secret);
			Begin = End;
			Found = Text.Find(Secret, ESearchCase::CaseSensitive, ESearchDir::FromStart, Begin);
		}
		return Result + Text.RightChop(Begin);
	}

	void Note(const FString& Secret)
	{
		if (Secret.TrimStartAndEnd().IsEmpty())
		{
			return;
		}
		// As it is, and as texts in quotes say it.
		const FString Quoted = Secret.Replace(TEXT("\\"), TEXT("\\\\"), ESearchCase::CaseSensitive).Replace(TEXT("\""), TEXT("\\\""), ESearchCase::CaseSensitive);
		for (const FString& Form : {Secret, Quoted})
		{
			if (!Secrets.ContainsByPredicate([&Form](const FString& Known) { return Known.Equals(Form); }))
			{
				Secrets.Add(Form);
			}
		}
		Secrets.Sort([](const FString& A, const FString& B) { return A.Len() > B.Len(); });
	}

	FString Hide(const FString& Text)
	{
		FString Result = Text;
		for (const FString& Secret : Secrets)
		{
			Result = HideOne(Result, Secret);
		}
		return Result;
	}
}
